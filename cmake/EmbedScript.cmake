# Writes the modules of a script, MODULES (a list of paths in the order in which they run), as one C++ source, OUTPUT, that
# holds them joined: without comments, indentation, imports and exports. The sources stay written for their readers.
#
# A comment stands on lines of its own or at the end of one, after a blank; so "// " after a blank may occur in no text.
string(REPLACE "|" ";" modules "${MODULES}")
set(script "\n")
foreach(module ${modules})
  file(READ ${module} text)
  string(APPEND script "${text}\n")
endforeach()
string(REGEX REPLACE "\nimport [^;]*;" "\n" script "${script}")
string(REGEX REPLACE "\nexport " "\n" script "${script}")
string(REGEX REPLACE "\n *//[^\n]*" "\n" script "${script}")
string(REGEX REPLACE " +// [^\n]*" "" script "${script}")
string(REGEX REPLACE "\n *//[^\n]*" "\n" script "${script}")
string(REGEX REPLACE "\n[ \n]+" "\n" script "${script}")
file(WRITE ${OUTPUT}.js "${script}")

file(READ ${OUTPUT}.js hex HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
string(REGEX REPLACE "((0x[0-9a-f][0-9a-f],){24})" "\\1\n" bytes "${bytes}")
file(WRITE ${OUTPUT} "#include \"browser/EmbeddedScript.h\"

namespace Wt {
namespace Browser {

namespace {
const unsigned char bytes[] = {
${bytes}
};
}

std::string_view script()
{
  return std::string_view(reinterpret_cast<const char *>(bytes), sizeof bytes);
}

} // namespace Browser
} // namespace Wt
")
