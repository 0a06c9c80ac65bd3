#include "tests/schema/model.h"

// Persons, programs and histories of the two oldest releases.

namespace KelIFC {
namespace {

TEST(OldestPerson, KeepsAllItsAttributesIn151) {
  const std::string text =
      "IFCPERSON('id','Smith','Ann',('May', 'o\\'Hara'),('Dr., h.c.'),$,(#1),(#2))";
  Model<Release151> model({{1, text}});
  EXPECT_EQ(model.TextOf(1), text);
  const auto* person = model.Get<KelIFC151::IfcPerson>(1);
  EXPECT_EQ(person->GetFamilyName(), std::string("Smith"));
  EXPECT_EQ(person->GetMiddleNames().GetSize(), 2u);
}

TEST(OldestPerson, HasPlainTextsIn20) {
  const std::string text = "IFCPERSON('Hietanen','Jiri',$,'Mr.',$,(#556),(#555))";
  Model<Release20> model({{1, text}});
  EXPECT_EQ(model.TextOf(1), text);
  EXPECT_EQ(model.Get<KelIFC20::IfcPerson>(1)->GetFamilyName(), std::string("Hietanen"));
  EXPECT_EQ(model.Get<KelIFC20::IfcPerson>(1)->GetPrefixTitles(), std::string("Mr."));
}

TEST(OldestOrganization, KeepsRolesAndAddressesOnlyIn20) {
  EXPECT_EQ(Rewritten<Release20>("IFCORGANIZATION('BLIS',(#1),(#557),'text')"),
            "IFCORGANIZATION('BLIS',(#1),(#557),'text')");
  EXPECT_EQ(Rewritten<Release151>("IFCORGANIZATION('id','name','text',(#1),(#2))"),
            "IFCORGANIZATION('id','name','text',$,$)");
}

TEST(OldestApplication, WritesItsIdentifierBeforeItsDeveloper) {
  const std::string text = "IFCAPPLICATION('id','full name','10',#559)";
  Model<Release20> model({{1, text}});
  EXPECT_EQ(model.TextOf(1), text);
  EXPECT_EQ(model.Get<KelIFC20::IfcApplication>(1)->GetVersion(), std::string("10"));
}

TEST(OldestHistory, HoldsNumbersIn151) {
  const std::string text = "IFCOWNERHISTORY(1,2,'id','text',#9)";
  Model<Release151> model({{1, text}});
  EXPECT_EQ(model.TextOf(1), text);
  EXPECT_EQ(static_cast<int>(model.Get<KelIFC151::IfcOwnerHistory>(1)->GetOwningActor()), 1);
}

TEST(OldestHistory, HoldsFlagsInDoubleQuotesIn20) {
  const std::string text = "IFCOWNERHISTORY(#562,#561,\"10\",'id','text',#9)";
  Model<Release20> model({{1, text}, {561, "IFCAPPLICATION($,$,$,$)"}, {562, "IFCPERSON($)"}});
  EXPECT_EQ(model.TextOf(1), text);
  const auto* history = model.Get<KelIFC20::IfcOwnerHistory>(1);
  EXPECT_EQ(history->GetOwningUser(), model.server.GetItem(std::size_t{562}));
  EXPECT_EQ(history->GetOwningApplication(), model.server.GetItem(std::size_t{561}));
  EXPECT_EQ(Rewritten<Release20>("IFCOWNERHISTORY(#1,#2,$,$,$,$)"),
            "IFCOWNERHISTORY(#1,#2,$,$,$,$)");
}

TEST(OldestRegistries, ReturnTheirPrograms) {
  Model<Release151> model({{1, "IFCPROJECTAPPREGISTRY((#2,#4,#99))"},
                           {2, "IFCREGISTEREDAPPLICATION('id','name',#3)"},
                           {3, "IFCORGANIZATION($,'maker',$,$,$)"},
                           {4, "IFCPROJECTTEAMREGISTRY((#3))"}});
  const auto* program = model.Get<KelIFC151::IfcRegisteredApplication>(2);
  EXPECT_EQ(program->GetRegisteredBy(), model.server.GetItem(std::size_t{1}));
  EXPECT_EQ(program->GetApplicationDeveloper(), model.server.GetItem(std::size_t{3}));
  EXPECT_EQ(model.TextOf(1), "IFCPROJECTAPPREGISTRY((#2, #4, #99))");
  EXPECT_EQ(model.TextOf(2), "IFCREGISTEREDAPPLICATION('id','name',#3)");
  EXPECT_EQ(model.Get<KelIFC151::IfcProjectTeamRegistry>(4)->GetRegisteredActors()[1],
            model.server.GetItem(std::size_t{3}));
}

TEST(OldestAddress, KeepsListsOfTexts) {
  const std::string text =
      "IFCADDRESS('room',('Street 1', "
      "'yard'),'Town',$,'12345','Land',('1'),(),('a@b'),$,'www',$,$)";
  KelIFC20::IfcAddress address;
  address.Parse(text.c_str());
  EXPECT_EQ(Text(address), text);
}

}  // namespace
}  // namespace KelIFC
