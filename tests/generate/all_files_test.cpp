#include "vqc/cmd/generate/all_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "generate/generate_support.h"

using namespace vqc;

namespace {

using Paths = std::vector<std::string>;

class AllFiles : public GenerateTest {
 protected:
  AllFiles() { describe("widget 'W' { realise='make' } family 'F' { widget='W' }"); }

  OutputPaths paths() const { return {folder / "config.c", folder / "code.c", folder / "stubs.c"}; }
  GeneratedFiles generated(const OutputPaths& paths) {
    return generate_all(document, all_families(document), {}, paths);
  }
};

TEST_F(AllFiles, AreWhatIsGeneratedOneByOne) {
  const GeneratedFiles made = generated(paths());
  ASSERT_EQ(3U, made.files.size());
  for (const int kind : {CONFIG_FILE, CODE_FILE, STUBS_FILE}) {
    const OutputFile& file = made.files[static_cast<std::size_t>(kind - CONFIG_FILE)];
    const std::string alone = folder / "alone.c";
    ASSERT_TRUE(generate_file(document, alone.c_str(), all_families(document), kind, {}));
    EXPECT_EQ(read_file(alone), file.text) << file.path;
    EXPECT_FALSE(std::filesystem::exists(file.path));
  }
  EXPECT_EQ(1, made.stubs.new_stubs);
}

TEST_F(AllFiles, KeepWhatStandsInTheStubsFile) {
  const std::string stubs = folder.with("stubs.c", generated(paths()).files[2].text + "int mine;\n");
  const GeneratedFiles made = generated(paths());
  EXPECT_EQ(read_file(stubs), made.files[2].text);
  EXPECT_EQ(0, made.stubs.new_stubs);
}

TEST_F(AllFiles, CanDoWithoutTheStubsFile) {
  const GeneratedFiles made = generated({folder / "config.c", folder / "code.c", {}});
  EXPECT_EQ(2U, made.files.size());
  EXPECT_FALSE(made.stubs.text);
}

TEST_F(AllFiles, ThatBlockHaveNoText) {
  folder.with("stubs.c", "Widget make(\n#if X\nint a)\n#else\nint b)\n#endif\n{\n");
  const GeneratedFiles made = generated(paths());
  EXPECT_FALSE(made.stubs.text);
  EXPECT_FALSE(made.stubs.messages.empty());
}

TEST_F(AllFiles, NeedAStubsFileThatCanBeRead) {
  const std::string unreadable = "/proc/self/mem";  // a file of which the first byte cannot be read, by nobody
  EXPECT_THROW(generated({folder / "config.c", folder / "code.c", unreadable}), std::system_error);
}

TEST_F(AllFiles, ClashWhereTwoPathsLeadToOneFile) {
  const std::string source = folder.with("w.vqc", "");
  const std::string link = folder / "link.c";
  std::filesystem::create_symlink("code.c", link);
  EXPECT_EQ(std::nullopt, find_clash(Paths{source}, Paths{folder / "config.c", folder / "code.c"}));
  EXPECT_EQ((PathClash{link, false}), find_clash(Paths{source}, Paths{folder / "code.c", link}));
  EXPECT_EQ((PathClash{folder / "./w.vqc", true}), find_clash(Paths{source}, Paths{link, folder / "./w.vqc"}));
}

}  // namespace
