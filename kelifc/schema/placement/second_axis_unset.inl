namespace {

/// The second axis stays as it was made: without values.
void DeriveSecondAxis(IfcDirection* /*second*/, const IfcDirection* /*first*/,
                      IfcServer* /*server*/) {}

}  // namespace
