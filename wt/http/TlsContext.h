// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_TLS_CONTEXT_H_
#define WT_HTTP_TLS_CONTEXT_H_

#include <memory>
#include <string>
#include <vector>

typedef struct ssl_st SSL;
typedef struct ssl_ctx_st SSL_CTX;

namespace Wt
{
namespace Net
{

/// Certificate, key and rules for the server's TLS connections: version 1.2 or newer, forward secrecy only.
class TlsContext
{
public:
  /// Null, with `error` telling why, if the files cannot be used. The key file must be closed to group and
  /// others.
  static std::shared_ptr<TlsContext> create(const std::string &certificateChain,
                                            const std::string &privateKey, std::string &error);
  ~TlsContext();

  /// A server's end for that connected, non-blocking socket, or null. The caller frees it.
  SSL *newSession(int socket) const;
  /// The names for which the certificate stands.
  std::vector<std::string> names() const;
  /// Whether the certificate is signed by itself, so that browsers know it only by an exception.
  bool isSelfSigned() const;

private:
  SSL_CTX *context_;

  explicit TlsContext(SSL_CTX *context) : context_(context) {}
  bool load(const std::string &certificateChain, const std::string &privateKey, std::string &error);
  void warnOfDates() const;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_TLS_CONTEXT_H_
