void IfcPolyLine::AddOwnPoint(IfcCartesianPoint* item) {
  if (item == nullptr) return;
  MEMBER member;
  member.Embed(item, *this);
  points.Add(member);
}
