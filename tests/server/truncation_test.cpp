#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "kelifc/server/ifc_server.h"

#include "tests/paths.h"
#include "tests/read_file.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

constexpr std::uintmax_t kLargestFile = std::uintmax_t{20} * 1024;

// Truncates the text at every byte, from its end, and loads the rest.
void LoadAllCuts(const std::string& text) {
  const TempFile file(text);
  IfcServer server;
  std::size_t loaded = 0;
  for (std::size_t size = text.size(); size > 0; --size) {
    std::filesystem::resize_file(file.GetPath(), size);
    server.SetRelease(IFC_RELEASE_NONE);
    if (server.LoadIfcFile(file.GetPath()) == 0) ++loaded;
  }
  EXPECT_GT(loaded, 0u);
}

TEST(Truncation, LoadsASmallModelCutAtAnyByte) {
  LoadAllCuts(
      "/* a model */\nISO-10303-21;\r\nHEADER;FILE_DESCRIPTION(('it\\'s'),'2;1');\n"
      "FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;\n"
      "#1=IFCPROJECT('0YvctVUKr0kugbFTf53O9L',$,'P',$,$,$,$,(#2),#3);\n"
      "#2=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-5,#4,$);\n"
      "#3=IFCUNITASSIGNMENT((#5,#6));#4=IFCAXIS2PLACEMENT3D(#7,#8,$);\n"
      "#5=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
      "#6=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(0.01745),#5);\n"
      "#7=IFCCARTESIANPOINT((0.,0.,0.));#8=IFCDIRECTION((0.,0.,1.));\n"
      "#9=IFCTRIMMEDCURVE(#7,(IFCPARAMETERVALUE(0.),#7),(#7),.T.,.CARTESIAN.);\n"
      "#10=IFCBOUNDINGBOX(#7,1.,1.,1.);#11=IFCAXIS2PLACEMENT2D(#7,$);\n"
      "#12=IFCWALL('x',#1,'\\X\\E4''\\\\',$,$,#13,$,'t');#13=IFCLOCALPLACEMENT(#13,#4);\n"
      "#14=IFCRELAGGREGATES($,$,$,$,#1,(#12,#15));#15=(IFCA(1)IFCB('x'));#16=IFCFOO(1,(2));\n"
      "ENDSEC;END-ISO-10303-21;\n");
}

TEST(Truncation, LoadsTheExamplesCutAtAnyByte) {
  const std::filesystem::path folder(kExamplesDir);
  if (!std::filesystem::exists(folder)) GTEST_SKIP() << "no examples here";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".ifc" || entry.file_size() >= kLargestFile) continue;
    SCOPED_TRACE(entry.path().string());
    LoadAllCuts(ReadFile(entry.path()));
  }
}

}  // namespace
}  // namespace KelIFC
