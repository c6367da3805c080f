#include <gtest/gtest.h>

#include "check/check_support.h"

namespace {

// The rules on the stop list.

TEST(StopLists, HaveClassesThatTheEditorKnows) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig stop_list='XmFrame,XmIconGadget,XmDialogShell'"));
  EXPECT_EQ((Sayings{"unknown_class: the editor does not know the class 'XmFrme' -> XmFrame",
                     "unknown_class: the editor does not know the class ' XmLabel' -> XmLabel",
                     "unknown_class: the editor does not know the class ''"}),
            said_at_marks("VQconfig stop_list='<XmFrme>,XmList,< XmLabel>,<>'"));
}

TEST(StopLists, HaveEachClassOnce) {
  const MarkedText text("VQconfig stop_list='<XmList>,XmText,<XmList>'");
  const Checked checked(text.text);
  ASSERT_EQ((Sayings{"class_twice: 'XmList' is in the stop list twice"}), checked.said());
  EXPECT_EQ(text.ranges[1], checked.findings[0].range);
  EXPECT_EQ((std::vector{Note{text.ranges[0], "it stands here already"}}), checked.findings[0].notes);
}

TEST(StopLists, WithEscapesShowThemselvesAsAWhole) {
  EXPECT_EQ((Sayings{"unknown_class: the editor does not know the class 'XyFrame' -> XmFrame"}),
            said_at_marks("VQconfig stop_list=<'XmList,Xy\\70rame'>"));
}

}  // namespace
