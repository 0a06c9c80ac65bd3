// Walks each collection of a structure by Enumerator, by Item and by the default member, and checks
// which errors a script gets. Prints each difference, and ends with 1 if there is one. The last line shows that
// no error has ended the script before.

var failures = 0;
var server = new ActiveXObject("KelIFC.IFCServer");
server.Load(WScript.Arguments(0));
var model = server.Structure;

function expect(what, given, wanted) {
  if (given === wanted) return;
  WScript.Echo(what + ": " + given + ", not " + wanted);
  failures = 1;
}

function hex(number) { return (number >>> 0).toString(16); }

// Expects that a function fails with an error number, or with any where `number` is null. The number
// of an Error object is signed.
function expectError(what, number, act) {
  try {
    act();
  } catch (error) {
    if (number !== null) expect("error of " + what, hex(error.number), hex(number));
    return;
  }
  expect("error of " + what, "none", "an error");
}

// Calls `use` with each item of a collection. `facts` returns what makes an item comparable.
function walk(name, collection, facts, use) {
  var count = 0;
  for (var items = new Enumerator(collection); !items.atEnd(); items.moveNext()) {
    var item = items.item();
    ++count;
    expect(name + " by Item", facts(collection.Item(count)), facts(item));
    expect(name + " by the default member", facts(collection(count)), facts(item));
    if (use) use(item);
  }
  expect("count of " + name, count, collection.Count);

  // The result of these calls is not used, and engines then ask for a method.
  if (count > 0) collection.Item(count);
  expectError("index 0 of " + name, 0x80070057, function () { collection.Item(0); });
  expectError("used index 0 of " + name, 0x80070057, function () { return collection.Item(0); });
  expectError("index past the end of " + name, 0x80004005,
              function () { collection.Item(count + 1); });
}

function nameOf(item) { return item.Name; }
function placeOf(point) { return point.X + " " + point.Y + " " + point.Z; }
function numberOf(number) { return number; }
function numberOfPoints(points) { return points.Count; }
function verticesOf(face) { return face.Numbers.Count; }

function walkPoints(element) { walk("points", element.Points, placeOf); }

walk("storeys", model.Storeys, nameOf);
walk("columns", model.Columns, nameOf, walkPoints);
walk("beams", model.Beams, nameOf, function (beam) {
  walkPoints(beam);
  walk("vertices", beam.BRep.Points, placeOf);
  walk("faces", beam.BRep.Faces, verticesOf, function (face) {
    walk("numbers", face.Numbers, numberOf);
  });
});
walk("walls", model.Walls, nameOf, function (wall) {
  walkPoints(wall);
  walk("windows", wall.Windows, nameOf, walkPoints);
  walk("doors", wall.Doors, nameOf, walkPoints);
});
walk("plates", model.Plates, nameOf, function (plate) {
  walkPoints(plate);
  walk("holes", plate.Holes, nameOf, walkPoints);
});
walk("foots", model.Foots, nameOf);
walk("objects", model.Objects, nameOf);
walk("sections", model.Sections, nameOf, function (section) {
  expect("section by name", model.Sections.Item(section.Name).Name, section.Name);
});
expectError("name of no section", 0x80004005, function () { model.Sections.Item("none such"); });

var materials = new Enumerator(model.Materials);
expect("materials", materials.atEnd(), true);
expectError("index 0 of materials", 0x80070057, function () { model.Materials.ItemByIndex(0); });

model.Columns(1).Name = "renamed";
expect("new name", model.Columns(1).Name, "renamed");
expectError("a property that can only be read", null, function () { model.Columns = 1; });
expectError("unknown name", 0x800a01b6, function () { model.NoSuchName(); });

// The same object has the options and the report of a load. A function follows the load.
var calls = 0;
var last = 0;
var rises = true;
server.Dialect = 1;
server.SetProgress(function (done, total) {
  ++calls;
  rises = rises && done >= last && done <= total;
  last = done;
});
server.Load(WScript.Arguments(0));
expect("result of a load", server.LoadResult, 0);
expect("dialect", server.Dialect, 1);
expect("calls during a load", calls > 0, true);
expect("progress that rises", rises, true);
expect("statements", server.ReportCount("statements") > 0, true);
expect("bad escapes", server.ReportCount("badEscapes"), 0);
expect("check", server.CheckModel(), true);
expect("JSON", server.ReportJson.indexOf("{\"statements\":"), 0);
expect("text", server.ReportText.length > 0, true);
expect("line of no instance", server.SourceLine(0), 0);
expectError("count of another name", 0x80070057, function () { server.ReportCount("none"); });
expectError("another dialect", 0x80070057, function () { server.Dialect = 2; });
expectError("limit below 0", 0x80070057, function () { server.MaxBytes = -1; });

// The same object chooses the reading, until the first collection of a structure is fetched.
function walkCompletely() {
  var complete = new ActiveXObject("KelIFC.IFCServer");
  complete.Load(WScript.Arguments(0));
  expectError("another reading", 0x80070057, function () { complete.Reading = 2; });
  complete.Reading = 1;
  expect("reading", complete.Reading, 1);
  walk("elements", complete.Elements, nameOf, function (element) {
    expect("class of an element", element.ClassName.substr(0, 3), "Ifc");
    walk("axis", element.Axis, placeOf);
    walk("outline", element.Outline, placeOf);
    walk("holes", element.Holes, numberOfPoints);
    expect("points of the boundary", element.Boundary.Points.Count >= 0, true);
    expect("box", element.BoxMin.Z <= element.BoxMax.Z, true);
    if (element.Kind === "member") {
      expect("area", element.Profile.Area > 0, true);
      walk("outline of a profile", element.Profile.Outline, placeOf);
      expectError("another parameter", 0x80070057,
                  function () { return element.Profile.Parameter("none"); });
    } else {
      expect("no profile", !element.Profile, true);
    }
  });
  walk("losses", complete.Losses, function (loss) { return loss.Id + loss.Reason; });
  walk("columns of the complete reading", complete.Structure.Columns, nameOf, walkPoints);
  walk("beams of the complete reading", complete.Structure.Beams, nameOf, walkPoints);
  expectError("reading that is chosen too late", 0x80004005,
              function () { complete.Reading = 0; });
}
walkCompletely();

function expectEndedLoad(what, result) {
  expectError(what, 0x80030002, function () { server.Load(WScript.Arguments(0)); });
  expect("result of a " + what, server.LoadResult, result);
}

server.MaxBytes = 10;
expect("limit", server.MaxBytes, 10);
expectEndedLoad("load beyond the bytes", 4);
server.MaxBytes = 0;
server.MaxInstances = 3;
expectEndedLoad("load beyond the instances", 4);
server.MaxInstances = 0;
server.MaxStatementBytes = 20;
expectEndedLoad("load beyond the length of a statement", 4);
server.MaxStatementBytes = 0;
server.SetProgress(function () { return false; });
expectEndedLoad("load that its function stops", 5);
server.SetProgress(function () { server.CancelLoad(); return true; });
expectEndedLoad("load that is cancelled", 5);
server.SetProgress(function () { return true; });

try {
  server.Load("no such file.ifc");
  expect("missing file", "loaded", "an error");
} catch (error) {
  expect("number of a missing file", hex(error.number), "80030002");
  expect("words of a missing file", error.description,
         "no such file.ifc was not found or cannot be opened.");
}
WScript.Echo("The walk has ended.");
WScript.Quit(failures);
