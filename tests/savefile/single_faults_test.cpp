#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/document.h"

using namespace vqc;

namespace {

using enum FindingId;

/// A document with one fault, which a person would see where the mark is.
struct Fault {
  const char* marked;
  FindingId id;
  const char* suggestion = "";
};

// One fault is one finding, wherever a rule of the grammar can break.

class SingleFault : public DocumentTest {
 protected:
  void expect_fault(const std::string& marked, const Fault& fault) {
    const MarkedText text(marked);
    document.clear();
    Places places(*Source::from_text(""));
    read_document(text.text, AfterError::go_on, &places);
    ASSERT_EQ(1U, text.ranges.size()) << marked;
    const Findings shown = shown_findings();
    ASSERT_EQ(1U, shown.size()) << marked << testing::PrintToString(shown);
    const Finding& found = shown.front();
    EXPECT_STREQ(kind_of(fault.id).name, kind_of(found.id).name) << marked;
    EXPECT_EQ(text.ranges.front(), found.range) << marked;
    EXPECT_EQ(fault.suggestion, found.suggestion) << marked;
  }

  Findings shown_findings() const {
    Findings shown = diagnostics.findings();
    std::erase_if(shown, [](const Finding& each) { return !kind_of(each.id).shown; });
    return shown;
  }

  /// Faults between sound items.
  void expect(const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
      expect_fault("VQconfig\nalias 'before' { to_name='T' }\n" + std::string(fault.marked) +
                       "\nalias 'after' {\n\tto_name='T'\n}\npage 'p'\nfamily 'F' {\n\talias='after'\n\tpage='p'\n}\n",
                   fault);
    }
  }

  /// Faults within a widget, between sound fields.
  void expect_in_widget(const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
      const std::string marked =
          "widget 'W' {\n\trealise='r'\n\t" + std::string(fault.marked) + "\n\tabstract='a'\n}\nwidget 'X' {\n}";
      expect({{marked.c_str(), fault.id, fault.suggestion}});
    }
  }

  /// Faults in the list of resources of a widget.
  void expect_in_resources(const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
      const std::string marked = "resource_definitions='a', , , True, VQC_FREE, VQC_FREE,\n" +
                                 std::string(fault.marked) + "\n'z', , 'p', False, VQC_FREE, VQC_FREE;";
      expect_in_widget({{marked.c_str(), fault.id, fault.suggestion}});
    }
  }
};

TEST_F(SingleFault, InTheFirstWord) {
  for (const Fault& fault : std::vector<Fault>{
           {"<vqconfig>\npage 'p'\n", no_document},
           {"<VQconfigs>\npage 'p'\n", no_document},
           {"<'VQconfig'>\npage 'p'\n", no_document},
           {"<page> 'p'\n", no_document},
           {"<>", no_document},
           {"<{>", no_document},
       }) {
    expect_fault(fault.marked, fault);
  }
}

TEST_F(SingleFault, InTheHeader) {
  for (const Fault& fault : std::vector<Fault>{
           {"code_name<> 'c'\nstubs_name='s'", expected_character},
           {"code_name <:> 'c'\nstubs_name='s'", expected_character},
           {"code_name=<>\nstubs_name='s'", expected_name},
           {"code_name=<5>\nstubs_name='s'", expected_name},
           {"code_name=<header>\nstubs_name='s'", expected_name},
           {"code_name=<'>c\nstubs_name='s'", unclosed_text},
           {"code_name=c<'>\nstubs_name='s'", unclosed_text},
           {"stubs_name='s'\n<code_name>='c'", misplaced_word},
           {"code_name='c'\n<code_name>='c'", misplaced_word},
           {"<cod_name>='c'\nstubs_name='s'", unknown_item, "code_name"},
           {"generate_alias_string<> t\nstop_list='XmFrame'", expected_character},
           {"stop_list=<;>'XmFrame'", expected_name},
           {"stop_list='XmFrame'<,>", unknown_item},
       }) {
    expect_fault("VQconfig\n" + std::string(fault.marked) + "\nalias 'after' {\n\tto_name='T'\n}\n", fault);
  }
}

TEST_F(SingleFault, WhereAnItemBegins) {
  expect({
      {"<widgt> 'W' {\n\trealise='r'\n}", unknown_item, "widget"},
      {"<Alias> 'A' {\n\tto_name='U'\n}", unknown_item, "alias"},
      {"<famly> 'G' {\n\tpage='p'\n}", unknown_item, "family"},
      {"<enumeraton> 'E' {\n\tenumentry 'a' {\n\t\tcode_symbol='A'\n\t}\n}", unknown_item, "enumeration"},
      {"<hedaer> 'h.h'", unknown_item, "header"},
      {"<unheard_of> 'h.h'", unknown_item},
      {"<'h.h'>", unknown_item},
      {"<17>", unknown_item},
      {"<}>", unknown_item},
      {"<{> }", unknown_item},
      {"<;>", unknown_item},
      {"<=>", unknown_item},
      {"</>", unknown_item},
      {"<#>", unknown_item},
      {"<\xe9>", unknown_item},
      {"<to_name>='U'", misplaced_word},
      {"<enumentry> 'a' {\n}", misplaced_word},
      {"<code_name>='c'", misplaced_word},
      {"<VQconfig>", misplaced_word},
      {"alias 'A' {\n}\n<}>", unknown_item},
  });
}

TEST_F(SingleFault, InTheNameOfAnItem) {
  expect({
      {"alias<> {\n\tto_name='U'\n}", expected_name},
      {"widget<> {\n\trealise='r'\n}", expected_name},
      {"family<> {\n\tpage='p'\n}", expected_name},
      {"page<>", expected_name},
      {"header<>", expected_name},
      {"cheader <5>", expected_name},
      {"family_header <-5>", expected_name},
      {"header <[>X11/Xlib.h]", expected_name},
      {"popup <popup> {\n}", expected_name},
      {"page <=>'q'", expected_name},
      {"page <'>q", unclosed_text},
      {"page q<'>", unclosed_text},
      {"header <'>q.h\nheader 'r.h'", unclosed_text},
      {"alias <'>A {\n\tto_name='U'\n}", unclosed_text},
      {"family <''> {\n}", nameless_family},
  });
}

TEST_F(SingleFault, InTheBracesOfABlock) {
  expect({
      {"alias 'A'<>\n\tto_name='U'\n}", expected_character},
      {"alias 'A' <(>\n\tto_name='U'\n}", expected_character},
      {"alias 'A' <=> {\n\tto_name='U'\n}", expected_character},
      {"alias 'A' <{>\n\tto_name='U'\n", unclosed_block},
      {"popup 'P' <{>\n\tdialog_init='i'\n", unclosed_block},
      {"converter 'C' <{>\n\tproc_name='c'\n", unclosed_block},
      {"enumeration 'E' <{>\n\ttypename='T'\n", unclosed_block},
      {"enumeration 'E' {\n\tenumentry 'a' <{>\n\t\tcode_symbol='A'\n\tenumentry 'b' {\n\t}\n}", unclosed_block},
      {"enumeration 'E' {\n\tenumentry 'a'<>\n\t\tcode_symbol='A'\n\t}\n}", expected_character},
      {"widget 'W' <{>\n\trealise='r'\n", unclosed_block},
      {"widget 'W' <{>\n\tresource_definitions='a', , , True;\n", unclosed_block},
      {"family 'G' <{>\n\tpage='p'\n", unclosed_block},
      {"family 'G' <{>\n\tpage='p'\nfamily 'H' {\n\tpage='p'\n}", unclosed_block},
      {"family 'G' <{>\n\tpage='p'\npage 'q'", unclosed_block},
      {"family 'G' <{>\n\tpage='p'\nheader 'h.h'\n", unclosed_block},
      {"family 'G'<>\n\tpage='p'\n}", expected_character},
      {"alias 'A' { to_name='U' }<}>", unknown_item},
      {"alias 'A' {\n\tto_name='U'\n\t<)>\n}", misplaced_word},
  });
}

TEST_F(SingleFault, InAField) {
  expect({
      {"alias 'A' {\n\t<to_nme>='U'\n}", misplaced_word, "to_name"},
      {"alias 'A' {\n\t<realise>='U'\n}", misplaced_word},
      {"alias 'A' {\n\tto_name<> 'U'\n}", expected_character},
      {"alias 'A' {\n\tto_name <:> 'U'\n}", expected_character},
      {"alias 'A' {\n\tto_name=<>\n}", expected_name},
      {"alias 'A' {\n\tto_name=<=>'U'\n}", expected_name},
      {"alias 'A' {\n\tto_name<>\n}", expected_character},
      {"alias 'A' {\n\tto_name=<7>\n}", expected_name},
      {"alias 'A' {\n\tto_name=<widget>\n}", expected_name},
      {"alias 'A' {\n\tto_name='U'<;>\n}", misplaced_word},
      {"alias 'A' {\n\tto_name='U' <'V'>\n}", misplaced_word},
      {"alias 'A' {\n\tto_name=U <V>\n}", misplaced_word},
      {"alias 'A' {\n\tto_name=<'>U\n}", unclosed_text},
      {"alias 'A' {\n\tto_name=U<'>\n}", unclosed_text},
      {"alias 'A' {\n\t<'to_name'>='U'\n}", misplaced_word},
      {"alias 'A' {\n\t<'U'>\n}", misplaced_word},
      {"alias 'A' {\n\t<5>\n}", misplaced_word},
      {"alias 'A' {\n\t<=>'U'\n}", misplaced_word},
      {"popup 'P' {\n\t<dialog_int>='i'\n\tdialog_update='u'\n}", misplaced_word, "dialog_init"},
      {"popup 'P' {\n\t<dialog>='i'\n\tdialog_update='u'\n}", misplaced_word},
      {"popup 'P' {\n\tdialog_init<> 'i'\n\tdialog_update='u'\n}", expected_character},
      {"popup 'P' {\n\tdialog_init=<>\n\tdialog_update='u'\n}", expected_name},
      {"popup 'P' {\n\tdialog_init<>\n\tdialog_update='u'\n}", expected_character},
      {"popup 'P' {\n\tdialog_init=<'>i\n\tdialog_update='u'\n}", unclosed_text},
      {"converter 'C' {\n\t<procname>='c'\n\tdialog='P'\n}", misplaced_word, "proc_name"},
      {"converter 'C' {\n\tadd_in_vq=<1>\n\tdialog='P'\n}", expected_boolean},
      {"converter 'C' {\n\tadd_in_vq=<>\n\tdialog='P'\n}", expected_boolean},
      {"converter 'C' {\n\tadd_in_vq<> True\n\tdialog='P'\n}", expected_character},
      {"converter 'C' {\n\tdialog_create=<5>\n}", expected_name},
      {"converter 'C' {\n\tdialog_create<> 'D'\n}", expected_character},
      {"enumeration 'E' {\n\t<type_name>='T'\n}", misplaced_word, "typename"},
      {"enumeration 'E' {\n\ttypename<> 'T'\n}", expected_character},
      {"enumeration 'E' {\n\t<enumetry> 'a' {\n\t\tcode_symbol='A'\n\t}\n}", misplaced_word, "enumentry"},
      {"enumeration 'E' {\n\tenumentry<> {\n\t\tcode_symbol='A'\n\t}\n}", expected_name},
      {"enumeration 'E' {\n\tenumentry <=> 'a' {\n\t}\n}", expected_name},
      {"enumeration 'E' {\n\tenumentry 'a' {\n\t\t<code_symbl>='A'\n\t}\n}", misplaced_word, "code_symbol"},
      {"enumeration 'E' {\n\tenumentry 'a' {\n\t\tcode_symbol<> 'A'\n\t}\n}", expected_character},
      {"enumeration 'E' {\n\tenumentry 'a' {\n\t\tcode_symbol=<>\n\t}\n}", expected_name},
      {"enumeration 'E' {\n\tenumentry 'a' {\n\t\t<typename>='A'\n\t}\n}", misplaced_word},
      {"enumeration 'E' {\n\tenumentry 'a' {\n\t\tcode_symbol=<'>A\n\t}\n}", unclosed_text},
  });
}

TEST_F(SingleFault, InAFieldOfAFamily) {
  expect({
      {"family 'G' {\n\t<widgets>='W'\n\tpage='p'\n}", misplaced_word, "widget"},
      {"family 'G' {\n\t<realise>='W'\n\tpage='p'\n}", misplaced_word},
      {"family 'G' {\n\talias<> 'after'\n\tpage='p'\n}", expected_character},
      {"family 'G' {\n\talias=<>\n\tpage='p'\n}", expected_name},
      {"family 'G' {\n\talias=<5>\n\tpage='p'\n}", expected_name},
      {"family 'G' {\n\talias=<alias>\n\tpage='p'\n}", expected_name},
      {"family 'G' {\n\tpage='p'<,> 'q'\n}", misplaced_word},
      {"family 'G' {\n\tpage='p'<;>\n}", misplaced_word},
      {"family 'G' {\n\theader=<'>h.h\n\tpage='p'\n}", unclosed_text},
      {"family 'G' {\n\tfamily_init<> 'i'\n\tpage='p'\n}", expected_character},
      {"family 'G' {\n\tfamily_init=<>\n\tpage='p'\n}", expected_name},
      {"family 'G' {\n\tfamily_init='i'\n\tgenerate_family_init_vq=<1>\n}", expected_boolean},
      {"family 'G' {\n\t<generate_family_int_vq>=True\n\tpage='p'\n}", misplaced_word, "generate_family_init_vq"},
      {"family 'G' {\n\tconverter<> 'c'\n}", expected_character},
  });
}

TEST_F(SingleFault, InAWidget) {
  expect_in_widget({
      {"<can_mange>=False", misplaced_word, "can_manage"},
      {"<to_name>='x'", misplaced_word},
      {"can_manage=<0>", expected_boolean},
      {"can_manage=<>", expected_boolean},
      {"can_manage<> False", expected_character},
      {"can_manage<>", expected_character},
      {"can_manage=False<,>", misplaced_word},
      {"can_manage=<'>False", unclosed_text},
      {"include_filename=<[>W.h]", expected_name},
      {"largeicon=<'>icon\n\tsmallicon='icon'", unclosed_text},
      {"largeicon=icon<'>\n\tsmallicon='icon'", unclosed_text},
      {"<resource_definitons>='b', , , True, VQC_FREE, VQC_FREE,\n'c', , , True;", misplaced_word,
       "resource_definitions"},
      {"resource_definitions<> 'b', , , True, VQC_FREE, VQC_FREE;", expected_character},
      {"resource_popups<> 'b', 'P'", expected_character},
      {"resource_popups=<b>, 'P'", expected_text},
      {"resource_popups=<>", expected_text},
      {"resource_popups='b', <P>", expected_text},
      {"resource_popups='b',<>", expected_text},
      {"resource_popups='b', 'P' <'c'>, 'P'", misplaced_word},
      {"resource_popups='b', 'P'<;>", misplaced_word},
  });
}

TEST_F(SingleFault, InAListOfResources) {
  expect_in_resources({
      {"<b>, , , True, VQC_FREE, VQC_FREE,", expected_text},
      {"<5>, , , True, VQC_FREE, VQC_FREE,", expected_text},
      {"'b' , ,<> True, VQC_FREE, VQC_FREE,", expected_character},
      {"'b' <;> , , True, VQC_FREE, VQC_FREE,", expected_character},
      {"'b'<> 'P', 'p', True, VQC_FREE, VQC_FREE,", expected_character},
      {"'b', <P>, 'p', True, VQC_FREE, VQC_FREE,", expected_text},
      {"'b', 'P'<> 'p', True, VQC_FREE, VQC_FREE,", expected_character},
      {"'b', 'P', <p>, True, VQC_FREE, VQC_FREE,", expected_text},
      {"'b', 'P', 'p'<> True, VQC_FREE, VQC_FREE,", expected_character},
      {"'b', , ,<> , VQC_FREE, VQC_FREE,", expected_boolean},
      {"'b', , , <1>, VQC_FREE, VQC_FREE,", expected_boolean},
      {"'b', , , <'True'>, VQC_FREE, VQC_FREE,", expected_boolean},
      {"'b', , , True, <VQC_FREED>, VQC_FREE,", expected_free_mode, "VQC_FREE"},
      {"'b', , , True, VQC_FREE, <VQC_DONTFREE>,", expected_free_mode, "VQC_DONT_FREE"},
      {"'b', , , True, <5>, VQC_FREE,", expected_free_mode},
      {"'b', , , True, VQC_FREE,<> ,", expected_free_mode},
      {"'b', , , True, VQC_FREE<> VQC_FREE,", expected_character},
      {"'b', , , True, VQC_FREE,<>\n'c', , , True,", expected_free_mode},
      {"'b', , , True, VQC_FREE, VQC_FREE<>", expected_character},
      {"'b', , , True, VQC_FREE, VQC_FREE <acess> 3,", misplaced_word, "access"},
      {"'b', , , True, VQC_FREE, VQC_FREE <cuonter> 'n',", misplaced_word, "counter"},
      {"'b', , , True, VQC_FREE, VQC_FREE access <'3'>,", expected_integer},
      {"'b', , , True, VQC_FREE, VQC_FREE access<>,", expected_integer},
      {"'b', , , True, VQC_FREE, VQC_FREE access 3 counter <n>,", expected_text},
      {"'b', , , True, VQC_FREE, VQC_FREE counter<>,", expected_text},
      {"'b', , , True, VQC_FREE, VQC_FREE counter 'n' <access> 3,", misplaced_word, "access"},
      {"'b', , , True, VQC_FREE, VQC_FREE <:>", expected_character},
      {"'b', , , True, VQC_FREE, VQC_FREE,<,>", expected_text},
      {"<'>b, , , True, VQC_FREE, VQC_FREE,", unclosed_text},
      {"'b', <'>P, 'p', True, VQC_FREE, VQC_FREE,", unclosed_text},
      {"'b', 'P', <'>p, True, VQC_FREE, VQC_FREE,", unclosed_text},
      {"'b', , , True, VQC_FREE, VQC_FREE counter <'>n,", unclosed_text},
  });
}

TEST_F(SingleFault, AtTheEndOfAListOfResources) {
  expect_in_widget({
      {"resource_definitions='b', , , True, VQC_FREE, VQC_FREE<>", expected_character},
      {"resource_definitions='b', , , True, VQC_FREE, VQC_FREE <:>", list_end},
  });
  expect({
      {"widget 'W' {\n\tresource_definitions='b', , , True, VQC_FREE, VQC_FREE<>\n}", expected_character},
      {"widget 'W' {\n\tresource_definitions='b', , , True<>\n}", expected_character},
  });
}

TEST_F(SingleFault, InAComment) {
  expect({
      {"alias 'A' { </*> of 1994\n\tto_name='U'\n}\n/* of 1995 */\nalias 'B' {\n\tto_name='U'\n}", unclosed_comment},
  });
  for (const Fault& fault : std::vector<Fault>{
           {"alias 'A' { </*> of 1994\n\tto_name='U'\n}\n", unclosed_comment},
           {"alias 'A' {\n\tto_name='U'\n} </*> of 1994", open_comment},
           {"alias 'A' {\n\tto_name=<'>U\n}\n", unclosed_text},
           {"alias 'A' {\n\tto_name='U'\n}\npage <'p>", open_text},
           {"alias 'A' <{>\n\tto_name='U'", unclosed_block},
           {"alias 'A'<>", expected_character},
           {"alias<>", expected_name},
           {"alias 'A' {\n\tto_name<>", expected_character},
           {"alias 'A' {\n\tto_name=<>", expected_name},
       }) {
    expect_fault("VQconfig\n" + std::string(fault.marked), fault);
  }
}

TEST_F(SingleFault, ThatIsOnlyOdd) {
  expect({
      {"alias 'A' { to_name=<'a\\0b'> }", nul_in_text},
      {"alias 'A' { to_name=<'a\\300'> }", cut_escape},
      {"alias 'A' { to_name='T' <to_name>='T' }", said_twice},
      {"alias 'A' { to_name='T' }\nalias <'A'> { to_name='U' }", defined_twice},
      {"family 'G' { page='q' page=<'q'> }", named_twice},
      {"family 'G' { page='q' }\nfamily <'G'> { page='r' }", family_twice},
      {"converter 'C' { add_in_vq=<no> }", odd_flag},
      {"widget 'W' { can_manage=<Flase> }", odd_flag, "False"},
      {"widget 'W' { resource_definitions='a', , , <Ture>; }", odd_flag, "True"},
      {"widget 'W' { resource_definitions='a', , , True, VQC_FREE, VQC_FREE access <0>; }", odd_access},
      {"widget 'W' { resource_definitions='a', , , True, VQC_FREE, VQC_FREE access <4294967297>; }", wrapped_number},
      {"widget 'W' { resource_definitions='a', , , True, VQC_FREE, VQC_FREE access <2147483648>; }", wrapped_number},
      {"widget 'W' { resource_definitions='a', , , True, VQC_FREE, VQC_FREE access <-2147483649>; }", wrapped_number},
      {"widget 'W' { resource_definitions='a', , , True, VQC_FREE, VQC_FREE access <-2147483648>; }", odd_access},
      {"widget 'W' { resource_definitions='a', , , True <end> }", list_end},
  });
}

}  // namespace
