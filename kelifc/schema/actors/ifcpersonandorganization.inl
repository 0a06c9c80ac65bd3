void IfcPersonAndOrganization::SetRoles(const std::vector<IfcUnknown*>& items) { roles = items; }
