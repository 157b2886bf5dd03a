// SPDX-License-Identifier: MIT
#include "http/TlsContext.h"

#include "base/Log.h"

#include <openssl/err.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>
#include <sys/stat.h>

namespace Wt
{
namespace Net
{

namespace
{

const char kCipherList[] = "ECDHE+AESGCM:ECDHE+CHACHA20:!aNULL";
constexpr long kSessionSeconds = 2 * 60 * 60;

std::string reason()
{
  const unsigned long code = ERR_peek_last_error();
  const char *text = code ? ERR_reason_error_string(code) : nullptr;
  ERR_clear_error();
  return text ? text : "unknown error";
}

bool isRegular(const std::string &path, struct stat &info)
{
  return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

int chooseProtocol(SSL *, const unsigned char **chosen, unsigned char *chosenSize,
                   const unsigned char *offered, unsigned int offeredSize, void *)
{
  static const unsigned char http11[] = "\x08http/1.1";
  unsigned char *found = nullptr;
  if (SSL_select_next_proto(&found, chosenSize, http11, sizeof http11 - 1, offered, offeredSize) !=
      OPENSSL_NPN_NEGOTIATED)
    return SSL_TLSEXT_ERR_NOACK;
  *chosen = found;
  return SSL_TLSEXT_ERR_OK;
}

void setRules(SSL_CTX *context)
{
  SSL_CTX_set_min_proto_version(context, TLS1_2_VERSION);
  SSL_CTX_set_cipher_list(context, kCipherList);
  SSL_CTX_set_options(context, SSL_OP_NO_COMPRESSION | SSL_OP_NO_RENEGOTIATION |
                                   SSL_OP_CIPHER_SERVER_PREFERENCE | SSL_OP_PRIORITIZE_CHACHA |
                                   SSL_OP_SINGLE_ECDH_USE);
  // Buffers are given back while a connection rests: a thousand open pages then cost a few megabytes.
  SSL_CTX_set_mode(context, SSL_MODE_RELEASE_BUFFERS | SSL_MODE_ENABLE_PARTIAL_WRITE |
                                SSL_MODE_ACCEPT_MOVING_WRITE_BUFFER);
  // Sessions are resumed by tickets alone; the server keeps nothing, and the keys die with the process.
  SSL_CTX_set_session_cache_mode(context, SSL_SESS_CACHE_OFF);
  SSL_CTX_set_num_tickets(context, 1);
  SSL_CTX_set_timeout(context, kSessionSeconds);
  static const unsigned char id[] = "http";
  SSL_CTX_set_session_id_context(context, id, sizeof id - 1);
  SSL_CTX_set_alpn_select_cb(context, chooseProtocol, nullptr);
}

} // namespace

std::shared_ptr<TlsContext> TlsContext::create(const std::string &certificateChain,
                                               const std::string &privateKey, std::string &error)
{
  SSL_CTX *made = SSL_CTX_new(TLS_server_method());
  if (!made) {
    error = "TLS cannot be used: " + reason();
    return nullptr;
  }
  const std::shared_ptr<TlsContext> context(new TlsContext(made));
  setRules(made);
  return context->load(certificateChain, privateKey, error) ? context : nullptr;
}

TlsContext::~TlsContext()
{
  SSL_CTX_free(context_);
}

bool TlsContext::load(const std::string &certificateChain, const std::string &privateKey, std::string &error)
{
  struct stat info = {};
  ERR_clear_error();
  if (!isRegular(certificateChain, info)) {
    error = "The certificate \"" + certificateChain + "\" is not a file.";
  } else if (!isRegular(privateKey, info)) {
    error = "The private key \"" + privateKey + "\" is not a file.";
  } else if ((info.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
    error = "The private key \"" + privateKey + "\" must be closed to group and others (chmod 600).";
  } else if (SSL_CTX_use_certificate_chain_file(context_, certificateChain.c_str()) != 1) {
    error = "The certificate \"" + certificateChain + "\" cannot be used: " + reason() + ".";
  } else if (SSL_CTX_use_PrivateKey_file(context_, privateKey.c_str(), SSL_FILETYPE_PEM) != 1) {
    const bool stranger = ERR_GET_REASON(ERR_peek_last_error()) == X509_R_KEY_VALUES_MISMATCH;
    error = "The private key \"" + privateKey + "\" " +
            (stranger ? "does not belong to the certificate \"" + certificateChain + "\"."
                      : "cannot be used: " + reason() + ".");
  } else {
    warnOfDates();
    return true;
  }
  return false;
}

void TlsContext::warnOfDates() const
{
  const X509 *certificate = SSL_CTX_get0_certificate(context_);
  if (!certificate)
    return;
  if (X509_cmp_current_time(X509_get0_notAfter(certificate)) < 0)
    Engine::log(Engine::LogLevel::Warning, "http", "The TLS certificate has expired.");
  else if (X509_cmp_current_time(X509_get0_notBefore(certificate)) > 0)
    Engine::log(Engine::LogLevel::Warning, "http", "The TLS certificate is not valid yet.");
}

bool TlsContext::isSelfSigned() const
{
  const X509 *certificate = SSL_CTX_get0_certificate(context_);
  return certificate &&
         X509_name_cmp(X509_get_subject_name(certificate), X509_get_issuer_name(certificate)) == 0;
}

std::vector<std::string> TlsContext::names() const
{
  std::vector<std::string> names;
  const X509 *certificate = SSL_CTX_get0_certificate(context_);
  if (!certificate)
    return names;
  const auto add = [&names](const ASN1_STRING *text) {
    names.emplace_back(reinterpret_cast<const char *>(ASN1_STRING_get0_data(text)),
                       static_cast<std::size_t>(ASN1_STRING_length(text)));
  };
  auto *alternatives =
      static_cast<GENERAL_NAMES *>(X509_get_ext_d2i(certificate, NID_subject_alt_name, nullptr, nullptr));
  for (int i = 0; i < sk_GENERAL_NAME_num(alternatives); ++i)
    if (const GENERAL_NAME *name = sk_GENERAL_NAME_value(alternatives, i); name->type == GEN_DNS)
      add(name->d.dNSName);
  GENERAL_NAMES_free(alternatives);
  X509_NAME *subject = X509_get_subject_name(certificate);
  for (int i = -1; (i = X509_NAME_get_index_by_NID(subject, NID_commonName, i)) >= 0;)
    add(X509_NAME_ENTRY_get_data(X509_NAME_get_entry(subject, i)));
  return names;
}

SSL *TlsContext::newSession(int socket) const
{
  SSL *session = SSL_new(context_);
  if (session && SSL_set_fd(session, socket) == 1) {
    SSL_set_accept_state(session);
    return session;
  }
  SSL_free(session);
  return nullptr;
}

} // namespace Net
} // namespace Wt
