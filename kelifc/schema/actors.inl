// entity IfcOrganization

void IfcOrganization::SetAddresses(const std::vector<IfcUnknown*>& items) { addresses = items; }

void IfcOrganization::SetRoles(const std::vector<IfcUnknown*>& items) { roles = items; }

// entity IfcPersonAndOrganization

void IfcPersonAndOrganization::SetRoles(const std::vector<IfcUnknown*>& items) { roles = items; }
