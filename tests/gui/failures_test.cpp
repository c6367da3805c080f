#include <filesystem>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// What happens when files cannot be read or written: a message, and the document in memory is kept.

namespace {

const char athena[] = "VQconfig\nfamily 'Athena' {\n}\n";

class Failure : public Session {
 protected:
  Failure() {
    open_document(athena);
    add_family("Extra");
  }
  void expect_told(const std::string& path, const std::string& reason) {
    EXPECT_NE(std::string::npos, error_shown().find(path)) << error_shown();
    EXPECT_NE(std::string::npos, error_shown().find(reason)) << error_shown();
  }
  void expect_document_kept() {
    EXPECT_FALSE(exit_status);
    EXPECT_EQ((Items{"Athena", "Extra"}), items("family_selection"));
    save_as(folder / "rescued.vqc");
    EXPECT_NE(std::string::npos, read_file(folder / "rescued.vqc").find("family 'Extra' {\n"));
    EXPECT_EQ("vqconfig: rescued.vqc", title());
    EXPECT_FALSE(dirty);
  }
};

TEST_F(Failure, SaveIntoAFolderThatIsNotThere) {
  save_as(folder / "missing/a.vqc");
  expect_told(folder / "missing/a.vqc", "No such file or directory");
  EXPECT_TRUE(dirty);
  EXPECT_EQ("vqconfig: document.vqc", title());
  expect_document_kept();
}

TEST_F(Failure, SaveUnderAFile) {
  save_as(folder / "document.vqc/a.vqc");
  expect_told(folder / "document.vqc/a.vqc", "Not a directory");
  EXPECT_TRUE(dirty);
  EXPECT_EQ(athena, read_file(folder / "document.vqc"));
  expect_document_kept();
}

TEST_F(Failure, SaveOverWhatCannotBeWritten) {
  std::filesystem::create_directory(folder / "a.vqc");
  save_as(folder / "a.vqc");
  expect_told(folder / "a.vqc", "Is a directory");
  EXPECT_TRUE(dirty);
  expect_document_kept();
}

TEST_F(Failure, SaveOfADocumentWhosePlaceHasGone) {
  std::filesystem::remove(folder / "document.vqc");
  std::filesystem::create_directory(folder / "document.vqc");
  press("family_saveb");
  expect_told(folder / "document.vqc", "Is a directory");
  EXPECT_TRUE(dirty);
  expect_document_kept();
}

TEST_F(Failure, SaveOnAFullDisk) {
  save_as("/dev/full");
  EXPECT_EQ(filled("file_write_fail", "No space left on device"), error_shown());
  EXPECT_FALSE(dirty);
  expect_document_kept();
}

TEST_F(Failure, SaveOfALargeDocumentOnAFullDisk) {
  std::string large = "VQconfig\n";
  for (int i = 0; i < 3000; ++i) large += "widget 'widget_of_a_large_document_" + std::to_string(i) + "' {\n}\n";
  read_into(folder.with("large.vqc", large));
  save_as("/dev/full");
  EXPECT_EQ(filled("file_write_fail", "No space left on device"), error_shown());
  expect_document_kept();
}

TEST_F(Failure, GenerateOnAFullDisk) {
  press("family_genconfigb");
  choose_file("gen_fsb", "/dev/full");
  EXPECT_EQ(filled("file_write_fail", "No space left on device"), error_shown());
  EXPECT_TRUE(dirty);
  expect_document_kept();
}

TEST_F(Failure, GenerateIntoAFolderThatIsNotThere) {
  press("family_genstubs_b");
  choose_file("gen_fsb", folder / "missing/a.c");
  expect_told(folder / "missing/a.c", "No such file or directory");
  expect_document_kept();
}

TEST_F(Failure, ReadOfAFolder) {
  read_into(folder.path());
  expect_told(folder.path(), "Is a directory");
  EXPECT_EQ((Items{"Athena", "Extra"}), items("family_selection"));
  expect_document_kept();
}

TEST_F(Failure, OpenOfAFolder) {
  press("family_saveb");
  open_file(folder.path());
  expect_told(folder.path(), "Is a directory");
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_FALSE(save_file);
  EXPECT_FALSE(dirty);
  expect_document_kept();
}

TEST_F(Failure, ReadOfWhatIsNoDocument) {
  read_into(folder.with("letter", "Dear Sir\n"));
  EXPECT_EQ(resource_text("bad_save_file"), error_shown());
  EXPECT_EQ((Items{"Athena", "Extra"}), items("family_selection"));
  EXPECT_EQ("vqconfig: document.vqc", title());
}

}  // namespace
