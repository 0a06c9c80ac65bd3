// A text that is no identifier leaves the zeroed form as it is.
_GUID IfcRoot::GetGlobalGUID() const {
  _GUID guid = {};
  DecodeGlobalId64(globalId.c_str(), guid);
  return guid;
}

void IfcRoot::SetGlobalGUID(const _GUID& guid) {
  char text[30];
  if (EncodeGlobalId64(guid, text, sizeof text) != nullptr) globalId = text;
}
