// SPDX-License-Identifier: MIT
#ifndef PLATFORM_ATTRIBUTES_H_
#define PLATFORM_ATTRIBUTES_H_

/// The switch's read-only key store: facts that were fixed when the switch was built, such as its brand.
///
/// They lie in a text file, "/etc/nevo/attributes" unless the environment variable NEVO_ATTRIBUTES names
/// another: one "key=value" in a line, blanks around both ignored, lines that begin with "#" are comments,
/// the last of several lines with the same key counts. A file is read once, at the first question to it.

/// The value of a key, or defaultValue (may be null) if the key or the file is not there. A text that was
/// found lives as long as the process. May be called from any thread.
const char *Attributes_getString(const char *name, const char *defaultValue);

#endif // PLATFORM_ATTRIBUTES_H_
