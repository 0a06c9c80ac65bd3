#ifndef KELIFC_TESTS_FAULTS_SMALL_MODEL_H_
#define KELIFC_TESTS_FAULTS_SMALL_MODEL_H_

#include <string>

namespace KelIFC {

/// Returns the text of a file of release 2x3 with texts, lists, inline values, relationships and an
/// unknown class.
inline const std::string& SmallModel() {
  static const std::string text =
      "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_SCHEMA(('IFC2X3'));\nENDSEC;\n"
      "DATA;\n"
      "#1=IFCPROJECT('0YvctVUKr0kugbFTf53O9L',$,'A project with a name',$,$,$,$,(#2),#3);\n"
      "#2=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-5,#4,$);\n"
      "#3=IFCUNITASSIGNMENT((#5,#6,#40));\n"
      "#4=IFCAXIS2PLACEMENT3D(#7,#8,$);\n"
      "#5=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
      "#6=IFCMEASUREWITHUNIT(IFCRATIOMEASURE(0.01745),#5);\n"
      "#7=IFCCARTESIANPOINT((0.,0.,0.));\n"
      "#8=IFCDIRECTION((0.,0.,1.));\n"
      "#9=IFCTRIMMEDCURVE(#7,(IFCPARAMETERVALUE(0.),#7),(#7),.T.,.CARTESIAN.);\n"
      "#10=IFCPOLYLINE((#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7,#7));\n"
      "#12=IFCWALL('0YvctVUKr0kugbFTf53O9M',#1,'A wall whose name is longer than a few letters',"
      "$,$,#13,$,'tag');\n"
      "#13=IFCLOCALPLACEMENT($,#4);\n"
      "#14=IFCRELAGGREGATES('0YvctVUKr0kugbFTf53O9N',$,$,$,#1,(#12,#15));\n"
      "#15=IFCBUILDING('0YvctVUKr0kugbFTf53O9O',$,'B',$,$,$,$,$,.ELEMENT.,$,$,$);\n"
      "#16=IFCSOMETHINGELSE('an entity that no release knows and that is kept as it is',(2));\n"
      "#17=IFCPROPERTYSET('0YvctVUKr0kugbFTf53O9P',$,'Pset',$,(#18,#19));\n"
      "#18=IFCPROPERTYSINGLEVALUE('a',$,IFCLABEL('a value that stands in its place'),$);\n"
      "#19=IFCPROPERTYSINGLEVALUE('b',$,IFCBOOLEAN(.T.),$);\n"
      "#40=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);\n"
      "#1000000=IFCCARTESIANPOINT((1.,2.));\n"
      "ENDSEC;\nEND-ISO-10303-21;\n";
  return text;
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_FAULTS_SMALL_MODEL_H_
