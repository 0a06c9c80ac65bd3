#ifndef KELIFC_TESTS_IMPORT_MODEL_BUILDER_H_
#define KELIFC_TESTS_IMPORT_MODEL_BUILDER_H_

#include <initializer_list>
#include <sstream>
#include <string>

namespace KelIFC {

/// Writes the instances of a small model. Each function that returns a Ref adds an instance and
/// returns its reference, such as "#12", for use in other instances. "$" is an unset reference.
class ModelBuilder {
 public:
  using Ref = std::string;
  using Numbers = std::initializer_list<double>;
  using Refs = std::initializer_list<Ref>;

  /// `first` is the number of the first instance that is added.
  explicit ModelBuilder(int first = 1) : next(first) {}

  /// Adds an instance from its text, such as "IFCWALL(...)".
  Ref Add(const std::string& instance) {
    Ref ref = "#" + std::to_string(next++);
    data += ref + "=" + instance + ";\n";
    return ref;
  }

  /// Adds an instance with the given number.
  Ref AddAs(int number, const std::string& instance) {
    Ref ref = "#" + std::to_string(number);
    data += ref + "=" + instance + ";\n";
    return ref;
  }

  const std::string& Data() const { return data; }

  static std::string List(Refs refs) {
    std::string text;
    for (const Ref& ref : refs) text += (text.empty() ? "(" : ",") + ref;
    return (text.empty() ? "(" : text) + ")";
  }

  static std::string Real(double value) {
    std::ostringstream text;
    text.precision(17);
    text << value;
    return text.str().find_first_of(".en") == std::string::npos ? text.str() + "." : text.str();
  }

  static std::string Reals(Numbers numbers) {
    std::string text;
    for (const double number : numbers) text += (text.empty() ? "(" : ",") + Real(number);
    return text + ")";
  }

  Ref Point(Numbers coordinates) { return Add("IFCCARTESIANPOINT(" + Reals(coordinates) + ")"); }
  Ref Direction(Numbers ratios) { return Add("IFCDIRECTION(" + Reals(ratios) + ")"); }

  /// A placement in space; `axis` and `x` are its z and x axes.
  Ref Placement(Numbers location, const Ref& axis = "$", const Ref& x = "$") {
    return Add("IFCAXIS2PLACEMENT3D(" + Point(location) + "," + axis + "," + x + ")");
  }

  /// A placement in space whose x axis has the direction `x` and whose z axis is up.
  Ref Turned(Numbers location, Numbers x) {
    const Ref up = Direction({0, 0, 1});
    return Placement(location, up, Direction(x));
  }

  Ref Placement2D(Numbers location, const Ref& x = "$") {
    return Add("IFCAXIS2PLACEMENT2D(" + Point(location) + "," + x + ")");
  }

  Ref Local(const Ref& relative, const Ref& to = "$") {
    return Add("IFCLOCALPLACEMENT(" + to + "," + relative + ")");
  }

  Ref PolyLine(std::initializer_list<Numbers> points) {
    std::string list;
    for (const Numbers& point : points) list += (list.empty() ? "" : ",") + Point(point);
    return Add("IFCPOLYLINE((" + list + "))");
  }

  Ref Rectangle(double x, double y, const Ref& position) {
    return Add("IFCRECTANGLEPROFILEDEF(.AREA.,$," + position + "," + Real(x) + "," + Real(y) + ")");
  }

  /// A rectangle at the origin of its plane.
  Ref Rectangle(double x, double y) { return Rectangle(x, y, Placement2D({0, 0})); }

  Ref Circle(double radius, const Ref& position) {
    return Add("IFCCIRCLEPROFILEDEF(.AREA.,$," + position + "," + Real(radius) + ")");
  }

  Ref Circle(double radius) { return Circle(radius, Placement2D({0, 0})); }

  Ref Outline(const Ref& curve) {
    return Add("IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$," + curve + ")");
  }

  Ref Extrusion(const Ref& profile, const Ref& position, const Ref& direction, double depth) {
    return Add("IFCEXTRUDEDAREASOLID(" + profile + "," + position + "," + direction + "," +
               Real(depth) + ")");
  }

  /// An extrusion upwards from the origin.
  Ref Extrusion(const Ref& profile, double depth) {
    const Ref position = Placement({0, 0, 0});
    return Extrusion(profile, position, Direction({0, 0, 1}), depth);
  }

  Ref Clipping(const Ref& first, const Ref& second = "$") {
    return Add("IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.," + first + "," + second + ")");
  }

  Ref Representation(Refs items, const std::string& identifier = "Body") {
    return Add("IFCSHAPEREPRESENTATION($,'" + identifier + "','SweptSolid'," + List(items) + ")");
  }

  /// A product shape with these representations.
  Ref Shape(Refs representations) {
    return Add("IFCPRODUCTDEFINITIONSHAPE($,$," + List(representations) + ")");
  }

  /// A product shape with one representation, whose identifier is "Body".
  Ref Body(Refs items) { return Shape({Representation(items)}); }

  /// A mapped item, which stands for the items of another representation.
  Ref Mapped(const Ref& origin, const Ref& representation, const Ref& target = "$") {
    const Ref map = Add("IFCREPRESENTATIONMAP(" + origin + "," + representation + ")");
    return Add("IFCMAPPEDITEM(" + map + "," + target + ")");
  }

  /// A product. `rest` is the text of the attributes after the eight that all elements have. The
  /// name "" is written as unset.
  Ref Product(const std::string& entity, const Ref& placement, const Ref& shape,
              const std::string& name = "A", const std::string& rest = "") {
    return Add(ProductText(entity, placement, shape, name, rest));
  }

  static std::string ProductText(const std::string& entity, const Ref& placement, const Ref& shape,
                                 const std::string& name, const std::string& rest = "",
                                 const std::string& id = "3VvSUbOOfKXvqnv$9xajtg") {
    return entity + "('" + id + "',$," + (name.empty() ? "$" : "'" + name + "'") + ",$,$," +
           placement + "," + shape + ",$" + (rest.empty() ? "" : "," + rest) + ")";
  }

  Ref Column(const Ref& placement, const Ref& shape, const std::string& name = "A") {
    return Product("IFCCOLUMN", placement, shape, name);
  }
  Ref Beam(const Ref& placement, const Ref& shape, const std::string& name = "A") {
    return Product("IFCBEAM", placement, shape, name);
  }
  Ref Wall(const Ref& placement, const Ref& shape, const std::string& name = "A") {
    return Product("IFCWALL", placement, shape, name);
  }
  Ref Slab(const Ref& placement, const Ref& shape, const std::string& name = "A") {
    return Product("IFCSLAB", placement, shape, name, ".FLOOR.");
  }
  Ref Opening(const Ref& placement, const Ref& shape, const std::string& name = "O") {
    return Product("IFCOPENINGELEMENT", placement, shape, name);
  }

  Ref Voids(const Ref& element, const Ref& opening) {
    return Add("IFCRELVOIDSELEMENT('1vS07nIMf1qPmR1pIb$Q2c',$,$,$," + element + "," + opening +
               ")");
  }
  Ref Fills(const Ref& opening, const Ref& element) {
    return Add("IFCRELFILLSELEMENT('1vS07nIMf1qPmR1pIb$Q2d',$,$,$," + opening + "," + element +
               ")");
  }

  /// A project whose length unit is the metre with a prefix, such as ".MILLI.".
  Ref Project(const std::string& prefix) {
    const Ref unit = Add("IFCSIUNIT(*,.LENGTHUNIT.," + prefix + ",.METRE.)");
    const Ref units = Add("IFCUNITASSIGNMENT((" + unit + "))");
    return Add("IFCPROJECT('0vS07nIMf1qPmR1pIb$Q2c',$,'P',$,$,$,$,$," + units + ")");
  }

 private:
  int next;
  std::string data;
};

}  // namespace KelIFC

#endif  // KELIFC_TESTS_IMPORT_MODEL_BUILDER_H_
