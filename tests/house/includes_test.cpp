#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "house/source_checks.h"
#include "support/files.h"

namespace {

using Complaints = std::vector<std::string>;
using Includes = std::vector<std::string>;

/// The C and C++ sources below src/, spelled from there.
std::vector<std::string> all_sources() {
  const std::filesystem::path root = std::string(SOURCE_ROOT) + "/src";
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string extension = entry.path().extension();
    if (extension == ".h" || extension == ".cpp" || extension == ".c") {
      paths.push_back(std::filesystem::relative(entry.path(), root));
    }
  }
  return paths;
}

TEST(Sources, KeepToTheLayers) {
  const std::vector<std::string> paths = all_sources();
  EXPECT_LT(50U, paths.size()) << "where are the others?";
  for (const std::string& path : paths) {
    EXPECT_EQ(Complaints{}, complaints_about(path, read_file(std::string(SOURCE_ROOT) + "/src/" + path)));
  }
}

TEST(Include, IsFoundWhereverItStands) {
  EXPECT_EQ((Includes{"\"a/b.h\"", "<c>", "<Xm/Xm.h>"}),
            includes_of("#include \"a/b.h\"\n  #  include <c> // why\nint i;\n#include\t<Xm/Xm.h>\n"));
}

TEST(Include, IsNotSoughtInCommentsAndText) {
  EXPECT_EQ(Includes{}, includes_of("// #include <c>\n/*\n#include <c>\n*/\nint include;\n"));
  EXPECT_EQ(Includes{}, includes_of("const char* text = R\"(\n#include \"c\"\n)\";\n"));
}

TEST(Include, MayLookToTheLeftAndAtItsOwnLayer) {
  EXPECT_EQ("", wrong_include("vqc/cmd/savefile/load.cpp", "\"vqc/cmd/savefile/lexer.h\""));
  EXPECT_EQ("", wrong_include("vqc/cmd/savefile/load.cpp", "\"vqc/cmd/model/document.h\""));
  EXPECT_EQ("", wrong_include("vqc/cmd/savefile/load.cpp", "\"libkel/text.h\""));
  EXPECT_EQ("", wrong_include("vqc/cmd/editors/program/help.cpp", "\"help/client/help.h\""));
  EXPECT_EQ("", wrong_include("vqc/cmd/editors/program/session.cpp", "\"vqc/cmd/application/batch.h\""));
  EXPECT_EQ("", wrong_include("help/client/help.cpp", "\"libkel/message.h\""));
  EXPECT_EQ("", wrong_include("help/client/help.cpp", "\"help/protocol.h\""));
  EXPECT_EQ("", wrong_include("help/viewer/client.cpp", "\"help/protocol.h\""));
}

TEST(Include, MayNotLookToTheRight) {
  struct Look {
    const char* from;
    const char* to;
  };
  const Look looks[] = {
      {"libkel/text.cpp", "\"vqc/cmd/model/records.h\""},
      {"vqc/cmd/model/document.h", "\"vqc/cmd/savefile/util.h\""},
      {"vqc/cmd/model/document.h", "\"help/client/help.h\""},
      {"vqc/cmd/savefile/save.cpp", "\"vqc/cmd/generate/generate.h\""},
      {"vqc/cmd/generate/generate.cpp", "\"vqc/cmd/editors/kit/dialog.h\""},
      {"vqc/cmd/editors/kit/dialog.cpp", "\"vqc/cmd/editors/entity.h\""},
      {"vqc/cmd/editors/open.cpp", "\"vqc/cmd/application/batch.h\""},
      {"vqc/cmd/editors/open.cpp", "\"help/client/help.h\""},
      {"help/client/help.cpp", "\"vqc/cmd/model/document.h\""},
      {"help/viewer/vqhelp.cpp", "\"help/client/help.h\""},
      {"help/protocol.cpp", "\"help/viewer/client.h\""},
      {"vqc/cmd/check/check.cpp", "\"vqc/cmd/generate/generate.h\""},
      {"vqc/tool/check.cpp", "\"vqc/cmd/application/batch.h\""},
      {"vqc/cmd/application/batch.cpp", "\"vqc/tool/commands.h\""},
      {"vqc/cmd/application/batch.cpp", "\"help/viewer/page.h\""},
      {"vqc/cmd/application/VQconfig.cpp", "\"vqc/cmd/editors/program/session.h\""},
      {"vqc/cmd/application/VQconfig.cpp", "\"desktop/search_path.h\""},
      {"vqc/cmd/editors/open.cpp", "\"vqc/cmd/editors/program/session.h\""},
  };
  for (const Look& look : looks) {
    EXPECT_EQ(std::string(look.from) + " looks to the right: " + look.to, wrong_include(look.from, look.to));
  }
}

TEST(Include, IsSpelledFromTheSourceFolder) {
  EXPECT_NE("", wrong_include("libkel/text.cpp", "\"text.h\""));
  EXPECT_NE("", wrong_include("libkel/text.cpp", "\"../vqc/cmd/model/document.h\""));
  EXPECT_NE("", wrong_include("libkel/text.cpp", "<vqc/cmd/model/document.h>"));
}

TEST(Include, OfMotifIsForThoseWhoShowSomething) {
  for (const char* path :
       {"vqc/cmd/editors/open.cpp", "vqc/cmd/editors/program/session.cpp", "help/viewer/vqhelp.cpp"}) {
    EXPECT_EQ("", wrong_include(path, "<Xm/Xm.h>"));
  }
  for (const char* path :
       {"libkel/text.h", "help/client/help.cpp", "vqc/cmd/model/document.h", "vqc/cmd/savefile/save.cpp",
        "vqc/cmd/generate/generate.cpp", "vqc/cmd/application/VQconfig.cpp", "vqc/tool/vqc.cpp"}) {
    EXPECT_NE("", wrong_include(path, "<Xm/Xm.h>")) << path;
    EXPECT_NE("", wrong_include(path, "\"Xm/Xm.h\"")) << path;
  }
}

TEST(Include, OfXIsForThemAndTheHelpClient) {
  for (const char* path : {"desktop/wheel.h", "vqc/cmd/editors/open.cpp", "vqc/cmd/editors/program/session.cpp",
                           "help/client/help.cpp", "help/viewer/vqhelp.cpp"}) {
    EXPECT_EQ("", wrong_include(path, "<X11/Intrinsic.h>"));
  }
  for (const char* path : {"libkel/text.cpp", "vqc/cmd/model/document.h", "vqc/cmd/savefile/save.cpp",
                           "vqc/cmd/generate/generate.cpp", "vqc/cmd/application/VQconfig.cpp", "vqc/tool/vqc.cpp"}) {
    EXPECT_NE("", wrong_include(path, "<X11/Intrinsic.h>")) << path;
    EXPECT_NE("", wrong_include(path, "\"X11/Xlib.h\"")) << path;
  }
}

TEST(Include, IsWrongInAFileOfNoLayer) { EXPECT_NE("", wrong_include("vqc/other/x.cpp", "<string>")); }

TEST(Exit, IsFoundWhereItIsCalled) {
  EXPECT_TRUE(calls_exit("void f() { exit(1); }"));
  EXPECT_TRUE(calls_exit("void f() { std::exit (1); }"));
  EXPECT_TRUE(calls_exit("void f() { _exit(1); }"));
  EXPECT_TRUE(calls_exit("const char* s = \"\\\"\"; void f() { abort(); }"));
  EXPECT_TRUE(calls_exit("const char* s = R\"(\")\"; int n = 1'000; void f() { exit(1); }"));
}

TEST(Exit, IsNotSoughtInCommentsLiteralsAndOtherNames) {
  EXPECT_FALSE(calls_exit("// exit(1)\n/* exit(1) */ int i;"));
  EXPECT_FALSE(calls_exit("const char* s = \"exit(1)\"; const char* r = R\"x(exit(1))x\";"));
  EXPECT_FALSE(calls_exit("void f() { at_exit(1); exit_code = 1; quit.exits(); }"));
}

TEST(Guard, IsNamedAfterThePath) {
  EXPECT_EQ("VQC_CMD_MODEL_NAME_LIST_H", guard_of("vqc/cmd/model/name_list.h"));
  EXPECT_TRUE(is_guarded("libkel/x.h", "#ifndef LIBKEL_X_H\n#define LIBKEL_X_H\n\nint x;\n\n#endif\n"));
  EXPECT_FALSE(is_guarded("libkel/x.h", "#ifndef X_H\n#define X_H\n\nint x;\n\n#endif\n"));
  EXPECT_FALSE(is_guarded("libkel/x.h", "#ifndef LIBKEL_X_H\n#define LIBKEL_Y_H\n\nint x;\n\n#endif\n"));
  EXPECT_FALSE(is_guarded("libkel/x.h", "int x;\n"));
}

TEST(Complaints, NameEveryFault) {
  const std::string source = "#include <Xm/Xm.h>\n#include \"vqc/cmd/savefile/util.h\"\nvoid f() { exit(1); }\n";
  EXPECT_EQ((Complaints{"vqc/cmd/model/x.h includes Motif: <Xm/Xm.h>",
                        "vqc/cmd/model/x.h looks to the right: \"vqc/cmd/savefile/util.h\"",
                        "vqc/cmd/model/x.h ends the program", "vqc/cmd/model/x.h has no guard of its name"}),
            complaints_about("vqc/cmd/model/x.h", source));
}

}  // namespace
