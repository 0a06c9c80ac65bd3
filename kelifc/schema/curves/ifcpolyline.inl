void IfcPolyLine::AddPoint(std::size_t number) { points.Add(MEMBER(number)); }

void IfcPolyLine::AddPoint(IfcCartesianPoint* item) { AddMember(points, item, *this); }

void IfcPolyLine::AddPoint(const IfcCartesianPoint& item) { AddMember(points, &item, *this); }
