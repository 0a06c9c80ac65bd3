namespace {

/// Turns the first axis by a right angle.
void DeriveSecondAxis(IfcDirection* second, const IfcDirection* first, IfcServer* server) {
  if (second == nullptr) return;
  *second = IfcOrthogonalComplement(first);
  second->SetServer(server);
}

}  // namespace
