#include "kelifc/core/text/quoting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>

namespace KelIFC {
namespace {

/// The text and the rest after the closing quote; "(open)" if there is none.
struct Decoded {
  std::string text;
  std::string rest;
};

Decoded Decode(const std::string& text) {
  Decoded decoded;
  const char* closing = DecodeQuoted(text.c_str(), decoded.text);
  decoded.rest = closing == nullptr ? "(open)" : closing + 1;
  return decoded;
}

std::string Encode(const std::string& text) {
  std::ostringstream out;
  EncodeQuoted(out, text);
  return out.str();
}

/// The plain rules as the reference: one character at a time, with three flags.
Decoded DecodeSlowly(const std::string& text) {
  std::string read;
  bool inString = false;
  bool escape = false;
  bool hexNext = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (!inString) {
      inString = c == '\'';
    } else if (!escape) {
      if (c == '\'') return {read, text.substr(i + 1)};
      if (c == '\\') {
        escape = true;
      } else {
        hexNext = false;
        read += c;
      }
    } else if (hexNext) {
      const std::size_t count =
          std::min<std::size_t>(2, text.find_first_not_of("0123456789abcdefABCDEF", i) - i);
      if (count > 0) read += static_cast<char>(std::stoi(text.substr(i, count), nullptr, 16));
      hexNext = escape = false;
      if (++i == text.size()) break;
    } else {
      escape = false;
      if (c == 'X' || c == 'x') {
        hexNext = true;
      } else {
        if (c != '\'' && c != '\\') read += '\\';
        read += c;
      }
    }
  }
  return {read, "(open)"};
}

TEST(Quoting, SkipsTheTextBeforeTheFirstQuote) {
  EXPECT_EQ(Decode("('IFC2X3','X')").text, "IFC2X3");
  EXPECT_EQ(Decode("\\'x'").text, "x") << "an escape means nothing outside";
}

TEST(Quoting, EndsAtTheFirstQuoteThatIsNotEscaped) {
  EXPECT_EQ(Decode("'a''b',c").text, "a");
  EXPECT_EQ(Decode("'a''b',c").rest, "'b',c");
  EXPECT_EQ(Decode("'it\\'s',c").text, "it's");
  EXPECT_EQ(Decode("'it\\'s',c").rest, ",c");
  EXPECT_EQ(Decode("'\\\\',c").text, "\\");
  EXPECT_EQ(Decode("'',c").text, "");
}

TEST(Quoting, ReadsHexadecimalBytes) {
  EXPECT_EQ(Decode("'caf\\X\\E9!'").text, "caf\xE9!");
  EXPECT_EQ(Decode("'\\x\\e9'").text, "\xE9");
  EXPECT_EQ(Decode("'\\X\\00z'").text, std::string("\0z", 2));
}

TEST(Quoting, SkipsTwoCharactersAfterAnIncompleteByte) {
  EXPECT_EQ(Decode("'\\X\\9zb'").text,
            "\x09"
            "b");
  EXPECT_EQ(Decode("'\\X\\zzb'").text, "b");
  EXPECT_EQ(Decode("'\\X\\9'b'").text,
            "\x09"
            "b");
  EXPECT_EQ(Decode("'\\X\\ 41'").text, "1") << "no blank ahead of the digits";
}

TEST(Quoting, DropsAnIncompleteHexadecimalDirective) {
  EXPECT_EQ(Decode("'\\Xa'").text, "a");
  EXPECT_EQ(Decode("'\\X'").text, "");
  EXPECT_EQ(Decode("'\\X\\X\\41'").text, "41") << "the second mark is taken for digits";
}

TEST(Quoting, KeepsTheBackslashBeforeOtherCharacters) {
  EXPECT_EQ(Decode("'\\S\\d\\n'").text, "\\S\\d\\n");
}

TEST(Quoting, ContinuesAfterADirectiveOfAnotherDialect) {
  const Decoded decoded = Decode("'caf\\X2\\00E9\\X0\\',$,'next',1");
  EXPECT_EQ(decoded.text, "caf2\\00E90',$,");
  EXPECT_EQ(decoded.rest, "next',1");
}

TEST(Quoting, KeepsTheTextThatItReadBeforeTheEnd) {
  for (const char* text : {"'abc", "'abc\\", "'abc\\X", "'abc\\X\\", "'abc\\X\\4x"}) {
    EXPECT_EQ(Decode(text).rest, "(open)") << text;
  }
  EXPECT_EQ(Decode("'abc").text, "abc");
  EXPECT_EQ(Decode("'abc\\X\\4").text, "abc\x04");
  EXPECT_EQ(Decode("abc").rest, "(open)");
  EXPECT_EQ(Decode("").rest, "(open)");
}

TEST(Quoting, FindsATextWithoutEscapes) {
  std::string_view plain;
  EXPECT_TRUE(FindPlainQuoted("x 'abc','d'", plain));
  EXPECT_EQ(plain, "abc");
  EXPECT_TRUE(FindPlainQuoted("''", plain));
  EXPECT_EQ(plain, "");
  EXPECT_FALSE(FindPlainQuoted("'a\\'b'", plain));
  EXPECT_FALSE(FindPlainQuoted("'abc", plain));
  EXPECT_FALSE(FindPlainQuoted("abc", plain));
}

TEST(Quoting, ReadsRandomTextByTheRules) {
  std::mt19937 random(10);
  const std::string parts = "''''\\\\\\\\XxXabAf09 z,";
  for (int round = 0; round < 200000; ++round) {
    std::string text;
    for (std::size_t length = random() % 16; text.size() < length;) {
      text += parts[random() % parts.size()];
    }
    const Decoded decoded = Decode(text);
    const Decoded expected = DecodeSlowly(text);
    ASSERT_EQ(decoded.text, expected.text) << text;
    ASSERT_EQ(decoded.rest, expected.rest) << text;
  }
}

TEST(Quoting, EscapesQuotesBackslashesAndHighBytes) {
  EXPECT_EQ(Encode("it's"), "'it\\'s'");
  EXPECT_EQ(Encode("a\\b"), "'a\\\\b'");
  EXPECT_EQ(Encode("\xE4\x80\xFF"), "'\\X\\E4\\X\\80\\X\\FF'");
  EXPECT_EQ(Encode("\x01\n\x7F"), "'\x01\n\x7F'");
  EXPECT_EQ(Encode(""), "''");
}

TEST(Quoting, WritesUpToTheFirstNul) { EXPECT_EQ(Encode(std::string("a\0b", 3)), "'a'"); }

TEST(Quoting, ReadsBackWhatItWrites) {
  std::string all;
  for (int c = 255; c > 0; --c) all += static_cast<char>(c);
  const Decoded decoded = Decode(Encode(all) + ",rest");
  EXPECT_EQ(decoded.text, all);
  EXPECT_EQ(decoded.rest, ",rest");
}

TEST(Quoting, KnowsTheCharactersThatFormAPairWithAnEscape) {
  EXPECT_TRUE(IsEscapable('\''));
  EXPECT_TRUE(IsEscapable('\\'));
  EXPECT_FALSE(IsEscapable('X'));
}

TEST(Quoting, EncodesEachCharacterAtEachPlaceAsASingleOne) {
  for (int c = 1; c < 256; ++c) {
    const std::string alone = Encode(std::string(1, static_cast<char>(c)));
    const std::string inner = alone.substr(1, alone.size() - 2);
    for (std::size_t place = 0; place < 19; ++place) {
      std::string text(19, 'x');
      text[place] = static_cast<char>(c);
      std::string expected(20, 'x');
      expected.front() = '\'';
      ASSERT_EQ(Encode(text), expected.replace(place + 1, 1, inner) + "'") << c << " at " << place;
    }
  }
}

}  // namespace
}  // namespace KelIFC
