#ifndef KELIFC_GEO_SERVER_LINK_H_
#define KELIFC_GEO_SERVER_LINK_H_

#include <memory>
#include <utility>

namespace KelIFC {

class CoIFCServer;

/// A link from an object of a structure to the server object that it came from. It does not keep
/// the server object alive: when the server object is destroyed, the link becomes null.
class ServerLink {
 public:
  /// A link to no server object. Objects that a host created by themselves have it.
  ServerLink() = default;

  /// Returns the server object, or null if there is none or it has been destroyed.
  CoIFCServer* Get() const { return target == nullptr ? nullptr : *target; }

 private:
  friend class ServerLinkOwner;
  explicit ServerLink(std::shared_ptr<CoIFCServer*> target) : target(std::move(target)) {}

  std::shared_ptr<CoIFCServer*> target;
};

/// A member of the server object that creates links to it and makes them null at its end.
class ServerLinkOwner {
 public:
  explicit ServerLinkOwner(CoIFCServer* server) : target(std::make_shared<CoIFCServer*>(server)) {}
  ServerLinkOwner(const ServerLinkOwner&) = delete;
  ServerLinkOwner& operator=(const ServerLinkOwner&) = delete;
  ~ServerLinkOwner() { *target = nullptr; }

  ServerLink Link() const { return ServerLink(target); }

 private:
  std::shared_ptr<CoIFCServer*> target;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SERVER_LINK_H_
