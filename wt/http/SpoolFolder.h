// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_SPOOL_FOLDER_H_
#define WT_HTTP_SPOOL_FOLDER_H_

#include "http/FileHandle.h"

#include <mutex>
#include <string>

namespace Wt
{
namespace Net
{

/**
 * This process's own folder for uploads, "uploads-XXXXXX" below the folder that TMPDIR names or /tmp. It is
 * made when it is first needed, and locked while the process lives. So whoever finds such a folder without a
 * lock knows that its process has ended without cleaning up. Thread safe.
 */
class SpoolFolder
{
public:
  static SpoolFolder &instance();

  /// The folder's path; it is there unless the disk refuses it.
  std::string path();
  /// Removes this process's folder if it is empty.
  void leave();
  /// Removes what ended processes of this user have left.
  static void removeLeft();

private:
  std::mutex mutex_;
  std::string path_;
  FileHandle lock_;

  SpoolFolder() = default;
  void make();
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_SPOOL_FOLDER_H_
