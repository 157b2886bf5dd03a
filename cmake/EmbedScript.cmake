# Writes INPUT, a text file, as a C++ source that holds its bytes.
file(READ ${INPUT} hex HEX)
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
