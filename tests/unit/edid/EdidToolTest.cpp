// SPDX-License-Identifier: MIT
// The program edid-report.
#include "EdidBlock.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{

class EdidTool : public testing::Test
{
protected:
  EdidTool()
  {
    std::string name = testing::TempDir() + "edid-tool-XXXXXX";
    folder_ = mkdtemp(&name[0]);
  }
  ~EdidTool() override { std::filesystem::remove_all(folder_); }

  std::string path(const std::string &name) const { return folder_ + "/" + name; }

  // A file with the first bytes of a block.
  std::string file(const std::string &name, const EdidBlock &block, std::size_t size)
  {
    const std::string bytes(reinterpret_cast<const char *>(block.data()), EdidBlock::size());
    std::ofstream(path(name), std::ios::binary)
        << bytes.substr(0, size) << std::string(size > 256 ? size - 256 : 0, 'x');
    return path(name);
  }

  // Runs the tool; its output is in `out` and `err` afterwards, its exit status the result.
  int run(std::vector<std::string> arguments)
  {
    const pid_t child = fork();
    if (child == 0) {
      redirect(STDOUT_FILENO, path("out"));
      redirect(STDERR_FILENO, path("err"));
      std::vector<char *> list{const_cast<char *>("edid-report")};
      for (std::string &argument : arguments)
        list.push_back(&argument[0]);
      list.push_back(nullptr);
      execv(NEVO_EDID_REPORT, list.data());
      _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    out = content(path("out"));
    err = content(path("err"));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::string out;
  std::string err;

private:
  static void redirect(int descriptor, const std::string &to)
  {
    dup2(open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), descriptor);
  }

  static std::string content(const std::string &from)
  {
    std::ifstream stream(from, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::string folder_;
};

} // namespace

TEST_F(EdidTool, printsTheReportOfABlock)
{
  EdidBlock block;
  block.set(8, {0x10, 0xAC}).set(128, std::string(128, 'x')).sign();
  EXPECT_EQ(run({file("block", block, 256)}), 0);
  EXPECT_EQ(out, block.report() + "\n");
  EXPECT_THAT(err, IsEmpty());
}

TEST_F(EdidTool, takesABlockWithoutItsSecondHalf)
{
  const EdidBlock block;
  EXPECT_EQ(run({file("block", block, 128)}), 0);
  EXPECT_EQ(out, block.report() + "\n");
}

TEST_F(EdidTool, refusesABlockOfAnotherSizeNamingFileAndSize)
{
  for (const std::size_t size : {0, 1, 127, 129, 255, 257, 384, 512, 65536}) {
    const std::string name = file("block", EdidBlock(), size);
    EXPECT_EQ(run({name}), 1);
    EXPECT_THAT(out, IsEmpty());
    EXPECT_EQ(err, "edid-report: " + name + ": " + std::to_string(size) +
                       " bytes long; an EDID block has 128 or 256.\n");
  }
}

TEST_F(EdidTool, readsNoFileToItsEndThatIsFarTooLong)
{
  EXPECT_EQ(run({"/dev/zero"}), 1);
  EXPECT_EQ(err, "edid-report: /dev/zero: more than 65536 bytes long; an EDID block has 128 or 256.\n");
}

TEST_F(EdidTool, refusesWhatItCannotRead)
{
  EXPECT_EQ(run({path("absent")}), 1);
  EXPECT_EQ(err, "edid-report: " + path("absent") + ": No such file or directory\n");
  EXPECT_EQ(run({path("")}), 1);
  EXPECT_EQ(err, "edid-report: " + path("") + ": Is a directory\n");
  EXPECT_THAT(out, IsEmpty());
}

TEST_F(EdidTool, headsEachOfSeveralFilesAndGoesOnAfterOneThatFails)
{
  const EdidBlock block;
  const std::string first = file("first", block, 256);
  const std::string bad = file("bad", block, 100);
  const std::string last = file("last", EdidBlock().set(8, {0x10, 0xAC}).sign(), 128);
  EXPECT_EQ(run({first, bad, last}), 1);
  EXPECT_EQ(out, "== " + first + "\n\n" + block.report() + "\n\n== " + bad + "\n\n\n== " + last + "\n\n" +
                     EdidBlock().set(8, {0x10, 0xAC}).sign().report() + "\n");
  EXPECT_EQ(err, "edid-report: " + bad + ": 100 bytes long; an EDID block has 128 or 256.\n");
  EXPECT_EQ(run({first, last}), 0);
  EXPECT_THAT(err, IsEmpty());
}

TEST_F(EdidTool, explainsItself)
{
  EXPECT_EQ(run({"--help"}), 0);
  EXPECT_THAT(out, HasSubstr("\n  edid-report FILE...\n"));
  EXPECT_THAT(err, IsEmpty());
  EXPECT_EQ(run({}), 2);
  EXPECT_THAT(err, HasSubstr("\n  edid-report FILE...\n"));
  EXPECT_THAT(out, IsEmpty());
}
