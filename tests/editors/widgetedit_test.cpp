#include <gtest/gtest.h>

#include "support/edited_document.h"

using namespace vqc;

namespace {

class WidgetResource : public EditedDocumentTest {
 protected:
  static WidgetDef* new_widget(const char* name) {
    EXPECT_EQ(0, widget_add(name));
    return widget_ptr(name);
  }

  WidgetDef* widget = new_widget("W");
};

TEST_F(WidgetResource, BelongsToOneWidget) {
  WidgetDef* other = new_widget("V");
  we_resource_add("r", widget);
  EXPECT_EQ(nullptr, resource_ptr(other, "r"));
  EXPECT_EQ(0, we_resource_add("r", other));
  EXPECT_NE(resource_ptr(widget, "r"), resource_ptr(other, "r"));
}

TEST_F(WidgetResource, NeedsAWidget) {
  EXPECT_NE(0, we_resource_add("r", nullptr));
  EXPECT_NE(0, we_resource_delete(nullptr, "r"));
  EXPECT_EQ(nullptr, resource_ptr(nullptr, "r"));
  EXPECT_EQ(nullptr, resource_first(nullptr));
}

TEST_F(WidgetResource, KeepsItsOwnCopyOfItsName) {
  char name[] = "r";
  we_resource_add(name, widget);
  name[0] = 's';
  EXPECT_NE(nullptr, resource_ptr(widget, "r"));
}

TEST_F(WidgetResource, IndexCountsFromZero) {
  for (const char* name : {"c", "a", "b"}) we_resource_add(name, widget);
  EXPECT_EQ(0, resource_index(widget, "a"));
  EXPECT_EQ(1, resource_index(widget, "b"));
  EXPECT_EQ(2, resource_index(widget, "c"));
}

TEST_F(WidgetResource, IndexIs27InAWidgetWithoutResources) { EXPECT_EQ(27, resource_index(widget, "a")); }

TEST_F(WidgetResource, IndexOfAnAbsentNameIsNoPlace) {
  we_resource_add("a", widget);
  EXPECT_EQ(-1, resource_index(widget, "b"));
}

TEST_F(WidgetResource, TakesItsCompatibilityFromTheDocument) {
  edited_document.compatibility = {.mfc = true, .java = false};
  we_resource_add("mfc", widget);
  edited_document.compatibility = {.mfc = false, .java = true};
  we_resource_add("java", widget);
  EXPECT_TRUE(resource_ptr(widget, "mfc")->mfc_compatible);
  EXPECT_FALSE(resource_ptr(widget, "mfc")->java_compatible);
  EXPECT_FALSE(resource_ptr(widget, "java")->mfc_compatible);
  EXPECT_TRUE(resource_ptr(widget, "java")->java_compatible);
}

TEST_F(WidgetResource, KeepsItsCompatibilityWhenAddedTwice) {
  we_resource_add("r", widget);
  edited_document.compatibility = {.mfc = true, .java = true};
  EXPECT_EQ(26, we_resource_add("r", widget));
  EXPECT_FALSE(resource_ptr(widget, "r")->mfc_compatible);
}

TEST_F(WidgetResource, GoesWithItsWidget) {
  we_resource_add("r", widget);
  resource_setcurrent(resource_ptr(widget, "r"));
  resource_first(widget);
  EXPECT_EQ(0, widget_delete("W"));
  EXPECT_EQ(nullptr, resource_getcurrent());
  EXPECT_EQ(nullptr, resource_next());
}

TEST_F(WidgetResource, GoesWithTheLastUseOfItsWidget) {
  Family* family = new_family("F");
  widgetlist_add("W", family);
  we_resource_add("r", widget);
  resource_setcurrent(resource_ptr(widget, "r"));
  widgetlist_delete(family, "W");
  EXPECT_EQ(nullptr, widget_ptr("W"));
  EXPECT_EQ(nullptr, resource_getcurrent());
}

}  // namespace
