#include "vqc/cmd/lookup/completions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "support/document.h"

using namespace vqc;

namespace {

using Names = std::vector<std::string>;

const char text[] =
    "VQconfig\n"
    "widget 'A' {\ninclude_filename='a.h'\nlargeiconheader='icons.h'\ndefined_name='name_of'\nrealise='make_a'\n}\n"
    "widget 'B' {\ninclude_filename='b.h'\nrealise='make_b'\n}\n"
    "widget 'C' {\ninclude_filename='b.h'\nrealise='make_a'\n}\n"
    "header 'code.h'\ncheader 'config.h'\nfamily_header 'family.h'\n"
    "converter 'String' {\nproc_name='add_string'\ndialog='choose_string'\n}\n"
    "popup 'edit_string' {\ndialog_init='fill'\ndialog_update='read'\n}\n"
    "page 'Second'\npage 'First'\n"
    "family 'F' {\nfamily_init='init_f'\n}\n";

class Completions : public DocumentTest {
 protected:
  Completions() { read_document(text); }
  Names of(ValueKind kind) const { return completions(document, kind); }
};

/// Whether names are in their order, with this one once among them.
bool has_once(const Names& names, std::string_view name) {
  return std::ranges::is_sorted(names) && std::ranges::count(names, name) == 1;
}

TEST_F(Completions, OfProceduresAreThoseInFieldsOfTheKind) {
  EXPECT_EQ((Names{"make_a", "make_b"}), of(ValueKind::create_procedure));
  EXPECT_EQ(Names{"name_of"}, of(ValueKind::name_procedure));
  EXPECT_EQ(Names{"add_string"}, of(ValueKind::converter_procedure));
  EXPECT_TRUE(
      has_once(of(ValueKind::popup_init_procedure), "fill"));  // beside those of the popups that are always there
  EXPECT_EQ(Names{"read"}, of(ValueKind::popup_update_procedure));
  EXPECT_EQ(Names{"init_f"}, of(ValueKind::family_procedure));
  EXPECT_EQ(Names(), of(ValueKind::parent_procedure));
}

TEST_F(Completions, OfHeadersAreThoseInFieldsAndLists) {
  EXPECT_EQ((Names{"a.h", "b.h", "code.h", "config.h", "family.h", "icons.h"}), of(ValueKind::header));
}

TEST_F(Completions, OfPopupsAreThoseThatThereAreAndThoseThatAreNamed) {
  EXPECT_TRUE(has_once(of(ValueKind::popup), "choose_string"));
  EXPECT_TRUE(has_once(of(ValueKind::popup), "edit_string"));
}

TEST_F(Completions, OfPagesAreAllPages) {
  EXPECT_TRUE(has_once(page_completions(document), "First"));
  EXPECT_TRUE(has_once(page_completions(document), "Second"));
  EXPECT_TRUE(has_once(page_completions(document), "display"));  // which is always there
}

}  // namespace
