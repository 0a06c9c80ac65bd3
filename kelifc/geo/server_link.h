#ifndef KELIFC_GEO_SERVER_LINK_H_
#define KELIFC_GEO_SERVER_LINK_H_

#include <memory>
#include <utility>

namespace KelIFC {

class CoIFCServer;

/// The way from an object of a structure back to the server object that it came from. It does not
/// keep the server object alive: once that is gone, the link is null.
class ServerLink {
 public:
  /// No server, as in an object that a host made by itself.
  ServerLink() = default;

  /// The server object; null if there is none or it is gone.
  CoIFCServer* Get() const { return target == nullptr ? nullptr : *target; }

 private:
  friend class ServerLinkOwner;
  explicit ServerLink(std::shared_ptr<CoIFCServer*> target) : target(std::move(target)) {}

  std::shared_ptr<CoIFCServer*> target;
};

/// Held by the server object: hands out links and cuts them all when it ends.
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
