// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_WT_HTTP_TEST_CERTIFICATE_H_
#define TESTS_UNIT_WT_HTTP_TEST_CERTIFICATE_H_

#include <cstdio>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>
#include <string>
#include <sys/stat.h>

/// Writes a key and a certificate that it signs itself, good for a day, for a name and "alternative." before
/// it.
inline void writeCertificate(const std::string &certificateFile, const std::string &keyFile, const char *name)
{
  EVP_PKEY *key = EVP_EC_gen("P-256");
  X509 *certificate = X509_new();
  X509_set_version(certificate, 2);
  ASN1_INTEGER_set(X509_get_serialNumber(certificate), 1);
  X509_gmtime_adj(X509_getm_notBefore(certificate), -3600);
  X509_gmtime_adj(X509_getm_notAfter(certificate), 24 * 3600);
  X509_set_pubkey(certificate, key);
  X509_NAME *subject = X509_get_subject_name(certificate);
  X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char *>(name), -1,
                             -1, 0);
  X509_set_issuer_name(certificate, subject);
  const std::string alternative = std::string("DNS:alternative.") + name;
  X509_EXTENSION *extension =
      X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, alternative.c_str());
  X509_add_ext(certificate, extension, -1);
  X509_EXTENSION_free(extension);
  X509_sign(certificate, key, EVP_sha256());
  if (std::FILE *file = std::fopen(certificateFile.c_str(), "w")) {
    PEM_write_X509(file, certificate);
    std::fclose(file);
  }
  if (std::FILE *file = std::fopen(keyFile.c_str(), "w")) {
    PEM_write_PrivateKey(file, key, nullptr, nullptr, 0, nullptr, nullptr);
    std::fclose(file);
  }
  ::chmod(keyFile.c_str(), 0600);
  X509_free(certificate);
  EVP_PKEY_free(key);
}

#endif // TESTS_UNIT_WT_HTTP_TEST_CERTIFICATE_H_
