' Walks each collection of a structure by For Each, by index and by the default member, and checks
' which errors a script gets. Prints each difference, and ends with 1 if there is one. The last line
' shows that no error has ended the script before.
Option Explicit

Dim server, model, failures
failures = 0
Set server = CreateObject("KelIFC.IFCServer")
server.Load WScript.Arguments(0)
Set model = server.Structure

Walk "storeys", model.Storeys
Walk "columns", model.Columns
Walk "beams", model.Beams
Walk "walls", model.Walls
Walk "plates", model.Plates
Walk "foots", model.Foots
Walk "sections", model.Sections
Walk "objects", model.Objects
Walk "materials", model.Materials

Dim wall, plate, section, beam, face
For Each wall In model.Walls
  Walk "windows", wall.Windows
  Walk "doors", wall.Doors
  Expect "open", wall.IsOpen, False
Next
For Each plate In model.Plates
  Walk "holes", plate.Holes
Next
For Each section In model.Sections
  Expect "section by name", model.Sections(section.Name).Name, section.Name
Next
For Each beam In model.Beams
  For Each face In beam.BRep.Faces
    Expect "numbers", face.Numbers(1) > 0, True
  Next
Next

Expect "version", model.Version, "25.0.3857"
Expect "compatible", model.IsCompatible("25.0.1"), True
Expect "not compatible", model.IsCompatible("26.0.1"), False
Expect "code", model.Columns(1).ObjectCode, 4

' The same object has the options and the report of a load.
server.Dialect = 1
Expect "dialect", server.Dialect, 1
server.MaxInstances = 1000000
server.SetProgress Nothing
server.Load WScript.Arguments(0)
Expect "load result", server.LoadResult, 0
Expect "statements", server.ReportCount("statements") > 0, True
Expect "check", server.CheckModel, True
Expect "report", Left(server.ReportJson, 14), "{""statements"":"

' The same object chooses the reading, until the first collection of a structure is fetched.
Dim complete, element, loss, hole
Set complete = CreateObject("KelIFC.IFCServer")
complete.Load WScript.Arguments(0)
Expect "classic reading", complete.Reading, 0
complete.Reading = 1
Expect "complete reading", complete.Reading, 1
Expect "elements", complete.Elements.Count > 0, True
For Each element In complete.Elements
  Expect "class of an element", Left(element.ClassName, 3), "Ifc"
  Expect "deviation", element.Deviation >= 0, True
  Expect "box", element.BoxMin.X <= element.BoxMax.X, True
  Expect "closed body", element.IsClosed, True
  If element.Kind = "member" Then
    Expect "axis", element.Axis.Count >= 2, True
    Expect "profile", element.Profile.Outline.Count >= 3, True
    Expect "height or diameter", element.Profile.Parameter("h") + element.Profile.Parameter("d") > 0, True
    ' Of the members of the examples, only one is tapered.
    Expect "no end profile", element.EndProfile Is Nothing, element.Name <> "Pedestal"
  ElseIf element.Kind = "surface" Then
    Expect "thickness", element.Thickness > 0, True
    Expect "no profile", element.Profile Is Nothing, True
    For Each hole In element.Holes
      Expect "hole", hole.Count >= 3, True
    Next
  End If
Next
For Each loss In complete.Losses
  Expect "reason", Len(loss.Reason) > 0, True
Next
Walk "elements", complete.Elements
Walk "losses", complete.Losses
Walk "columns of the complete reading", complete.Structure.Columns
Walk "walls of the complete reading", complete.Structure.Walls
Walk "plates of the complete reading", complete.Structure.Plates
Walk "storeys of the complete reading", complete.Structure.Storeys

' A name is changed in the object, never in the model.
model.Columns(1).Name = "renamed"
Expect "new name", model.Columns(1).Name, "renamed"
model.Columns(1).Points(1).X = 1.5
Expect "new coordinate", model.Columns(1).Points(1).X, 1.5

On Error Resume Next
Dim nothingAtAll
Set nothingAtAll = model.Columns.Item(0)
ExpectError "index 0", 5
Set nothingAtAll = model.Columns.Item(model.Columns.Count + 1)
ExpectError "index past the end", &H80004005
Set nothingAtAll = model.Sections("no such section")
ExpectError "name of no section", &H80004005
nothingAtAll = model.NoSuchName
ExpectError "unknown name", 438
server.Load "no such file.ifc"
Expect "words of an error", Err.Description, "no such file.ifc was not found or cannot be opened."
ExpectError "missing file", &H80030002
server.Load WScript.Arguments(1)
Expect "words of an error", Err.Description, "The IFC release of " & WScript.Arguments(1) & " cannot be converted."
ExpectError "file of an old release", &H80030002
server.MaxBytes = 10
server.Load WScript.Arguments(0)
ExpectError "file beyond a limit", &H80030002
Expect "result of a load beyond a limit", server.LoadResult, 4
server.Dialect = 2
ExpectError "another dialect", 5
server.Reading = 2
ExpectError "another reading", 5
complete.Reading = 0
ExpectError "reading that is chosen too late", &H80004005
Set nothingAtAll = complete.Elements.Item(0)
ExpectError "element 0", 5
WScript.Echo "The walk has ended."
WScript.Quit failures

Sub Walk(name, collection)
  Dim item, count
  count = 0
  For Each item In collection
    count = count + 1
    If name <> "materials" Then
      If name <> "objects" Then
        Expect name & " by index", collection.Item(count).Name, item.Name
        Expect name & " by the default member", collection(count).Name, item.Name
      End If
    End If
  Next
  Expect "count of " & name, collection.Count, count
End Sub

Sub Expect(what, given, wanted)
  If given = wanted Then Exit Sub
  WScript.Echo what & ": " & given & ", not " & wanted
  failures = 1
End Sub

Sub ExpectError(what, number)
  Expect "error of " & what, Hex(Err.Number), Hex(number)
  Err.Clear
End Sub
