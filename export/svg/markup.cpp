#include "export/svg/markup.h"

#include <algorithm>
#include <cmath>

#include "export/text.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr int kDecimals = 2;  // a hundredth of a millimetre is thinner than any line

bool IsFinite(const Point2& p) { return std::isfinite(p.x) && std::isfinite(p.y); }

// A coordinate on the paper in hundredths of a millimetre.
Point2 Rounded(const Point2& p) { return {std::round(p.x * 100.0), std::round(p.y * 100.0)}; }

void AppendAttribute(std::string& markup, std::string_view name, double value) {
  markup.append(" ").append(name).append("=\"");
  AppendRounded(markup, value, kDecimals);
  markup += '"';
}

void AppendClass(std::string& markup, std::string_view cssClass) {
  if (!cssClass.empty()) markup.append(" class=\"").append(cssClass).append("\"");
}

// True for a byte that begins a character of UTF-8.
bool BeginsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }

}  // namespace

std::size_t LengthOf(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCharacter));
}

std::string Shortened(std::string_view text, std::size_t longest) {
  constexpr std::size_t kBytesOfCharacter = 4;
  // The part that is looked at is bounded, whatever the length of the text is.
  const std::size_t part = kBytesOfCharacter * (longest + 1);
  std::string line = ValidUtf8(text.substr(0, part));
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
  if (LengthOf(line) <= longest && text.size() <= part) return line;
  std::size_t characters = 0;
  const auto end = std::find_if(line.begin(), line.end(), [&](char c) {
    return BeginsCharacter(c) && ++characters == longest;
  });
  line.erase(end, line.end());
  return line + "\xE2\x80\xA6";
}

std::string HeightText(double metres) {
  const double rounded = std::round(metres * 1000.0);
  std::string text = rounded > 0.0 ? "+" : rounded < 0.0 ? "-" : "\xC2\xB1";
  const double size = std::abs(rounded);
  AppendRounded(text, std::floor(size / 1000.0), 0);
  std::string digits;
  AppendRounded(digits, std::fmod(size, 1000.0), 0);
  text += '.';
  text.append(digits.size() < 3 ? 3 - digits.size() : 0, '0');
  return text + digits;
}

std::string Number(double value) {
  std::string text;
  AppendRounded(text, value, kDecimals);
  return text;
}

void AppendPath(std::string& data, const Sheet& sheet, const Outline& points, bool isClosed) {
  std::string path;
  std::size_t count = 0;
  Point2 last;
  for (const Point2& world : points) {
    const Point2 p = Rounded(sheet.ToPaper(world));
    if (!IsFinite(p)) return;
    if (count > 0 && p.x == last.x && p.y == last.y) continue;
    path += count == 0 ? 'M' : ' ';
    AppendRounded(path, p.x / 100.0, kDecimals);
    path += ' ';
    AppendRounded(path, p.y / 100.0, kDecimals);
    last = p;
    ++count;
  }
  if (count < 2) return;
  data += path;
  if (isClosed) data += 'Z';
}

void AppendPathElement(std::string& markup, std::string_view cssClass, std::string_view data) {
  if (data.empty()) return;
  markup += "<path";
  AppendClass(markup, cssClass);
  markup.append(" d=\"").append(data).append("\"/>");
}

void AppendText(std::string& markup, const Point2& at, std::string_view text,
                const TextStyle& style) {
  if (text.empty()) return;
  markup += "<text";
  AppendClass(markup, style.cssClass);
  AppendAttribute(markup, "x", at.x);
  AppendAttribute(markup, "y", at.y);
  if (std::abs(style.angle) > 0.005) {
    markup.append(" transform=\"rotate(").append(Number(style.angle)).append(" ");
    markup.append(Number(at.x)).append(" ").append(Number(at.y)).append(")\"");
  }
  markup.append(">").append(XmlText(text)).append("</text>\n");
}

void AppendLine(std::string& markup, std::string_view cssClass, const Point2& from,
                const Point2& to) {
  markup += "<line";
  AppendClass(markup, cssClass);
  AppendAttribute(markup, "x1", from.x);
  AppendAttribute(markup, "y1", from.y);
  AppendAttribute(markup, "x2", to.x);
  AppendAttribute(markup, "y2", to.y);
  markup += "/>\n";
}

void AppendBox(std::string& markup, std::string_view cssClass, const PaperBox& box) {
  markup += "<rect";
  AppendClass(markup, cssClass);
  AppendAttribute(markup, "x", box.left);
  AppendAttribute(markup, "y", box.top);
  AppendAttribute(markup, "width", box.right - box.left);
  AppendAttribute(markup, "height", box.bottom - box.top);
  markup += "/>\n";
}

}  // namespace KelIFC::exporting::svg
