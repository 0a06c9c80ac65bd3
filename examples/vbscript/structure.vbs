' Prints the building structure of an IFC model as one JSON object:
'
'   cscript //nologo structure.vbs MODEL.ifc
'
' Register the library first: regsvr32 KelIFC.dll
Option Explicit

Const NoStorey = 32767

If WScript.Arguments.Count <> 1 Then
  WScript.Echo "usage: cscript structure.vbs MODEL.ifc"
  WScript.Quit 64
End If

Dim server, model
Set server = CreateObject("KelIFC.IFCServer.1")
On Error Resume Next
server.Load WScript.Arguments(0)
If Err.Number <> 0 Then
  WScript.Echo Err.Description
  WScript.Quit 1
End If
On Error GoTo 0
Set model = server.Structure

' Sections are created while elements are converted, so they are read last.
WScript.Echo "{""file"": " & Text(WScript.Arguments(0)) & ","
WScript.Echo """storeys"": " & All(model.Storeys, "Storey") & ","
WScript.Echo """columns"": " & All(model.Columns, "Column") & ","
WScript.Echo """beams"": " & All(model.Beams, "Beam") & ","
WScript.Echo """walls"": " & All(model.Walls, "Wall") & ","
WScript.Echo """plates"": " & All(model.Plates, "Plate") & ","
WScript.Echo """foots"": " & All(model.Foots, "Foot") & ","
WScript.Echo """sections"": " & All(model.Sections, "Section") & "}"

' The descriptions of all items of a collection.
Function All(collection, kind)
  Dim item, result
  result = ""
  For Each item In collection
    If result <> "" Then result = result & "," & vbLf
    result = result & Describe(item, kind)
  Next
  All = "[" & result & "]"
End Function

Function Describe(item, kind)
  Select Case kind
    Case "Storey"
      Describe = Storey(item)
    Case "Column", "Opening"
      Describe = "{" & Element(item) & "}"
    Case "Beam"
      Describe = Beam(item)
    Case "Wall"
      Describe = Wall(item)
    Case "Plate"
      Describe = Plate(item)
    Case "Foot"
      Describe = Foot(item)
    Case "Point"
      Describe = Point(item)
    Case "Face"
      Describe = All(item.Numbers, "Number")
    Case "Number"
      Describe = CStr(item)
    Case "Section"
      Describe = Section(item)
  End Select
End Function

Function Storey(item)
  Storey = "{""number"": " & item.Number & ", ""name"": " & Text(item.Name) & _
      ", ""level"": " & Number(item.Level) & ", ""height"": " & Number(item.Height) & "}"
End Function

' The members that every element has, as text.
Function Common(item)
  Common = """name"": " & Text(item.Name) & ", ""guid"": " & Text(item.GUID) & _
      ", ""section"": " & Text(item.SectionName) & ", ""storey"": " & StoreyOf(item)
End Function

Function StoreyOf(item)
  Dim result
  result = NoStorey
  On Error Resume Next
  result = item.StoreyNumber
  On Error GoTo 0
  StoreyOf = result
  If result = NoStorey Then StoreyOf = "null"
End Function

Function Element(item)
  Element = Common(item) & ", ""points"": " & All(item.Points, "Point")
End Function

Function Beam(item)
  Beam = "{" & Element(item) & ", ""brep"": " & Boundary(item.BRep) & "}"
End Function

Function Boundary(brep)
  Boundary = "null"
  If brep.Points.Count > 0 Then
    Boundary = "{""points"": " & All(brep.Points, "Point") & ", ""faces"": " & All(brep.Faces, "Face") & "}"
  End If
End Function

Function Wall(item)
  Wall = "{" & Element(item) & ", ""closed"": " & LCase(CStr(item.Closed)) & _
      ", ""windows"": " & All(item.Windows, "Opening") & ", ""doors"": " & All(item.Doors, "Opening") & "}"
End Function

Function Plate(item)
  Plate = "{" & Element(item) & ", ""holes"": " & All(item.Holes, "Opening") & "}"
End Function

' A foot is a point itself.
Function Foot(item)
  Foot = "{" & Common(item) & ", ""location"": " & Point(item) & "}"
End Function

Function Point(item)
  Point = "[" & Number(item.X) & "," & Number(item.Y) & "," & Number(item.Z) & "]"
End Function

Function Section(item)
  Dim sizes
  Select Case item.Kind
    Case 1
      sizes = ", ""width"": " & Number(item.Width) & ", ""height"": " & Number(item.Height)
    Case 2
      sizes = ", ""diameter"": " & Number(item.Diameter)
    Case 3
      sizes = ", ""height"": " & Number(item.Height) & ", ""flangeThickness"": " & _
          Number(item.FlangeThickness) & ", ""webWidth"": " & Number(item.WebWidth) & _
          ", ""flangeWidth"": " & Number(item.FlangeWidth)
    Case 9
      sizes = ", ""thickness"": " & Number(item.Thickness)
    Case Else
      sizes = ""
  End Select
  Section = "{""name"": " & Text(item.Name) & ", ""kind"": " & item.Kind & sizes & "}"
End Function

' A number with a decimal point, independent of the settings of the user.
Function Number(value)
  Number = Replace(CStr(value), ",", ".")
  If Left(Number, 1) = "." Then Number = "0" & Number
  If Left(Number, 2) = "-." Then Number = "-0" & Mid(Number, 2)
End Function

' A text in quotes.
Function Text(value)
  Text = """" & Replace(Replace(value, "\", "\\"), """", "\""") & """"
End Function
