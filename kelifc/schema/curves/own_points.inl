void IfcPolyLine::AddOwnPoint(IfcCartesianPoint* item) {
  if (item == nullptr) return;
  item->SetServer(GetServer());
  MEMBER member(this);
  member = item;
  points.Add(member);
}
