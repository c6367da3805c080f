/*
 * The dialogues that every description may name: font, colour, pixmap, string and file selection.
 *
 * vqconfig writes no stubs for these, since a run-time brings its own.  The host has no editors, so here they are
 * empty; what matters to the generated tables is that they exist when the program is linked.
 */
#include "host.h"

/* Declared as the generated files declare them. */
#define DIALOGUE(name)                                                                  \
  void vq_##name##_dialog_create(Widget);                                               \
  void vq_##name##_dialog_initialise(Widget, Widget, char*);                            \
  void vq_##name##_dialog_create(Widget parent) { (void)parent; }                       \
  void vq_##name##_dialog_initialise(Widget source_text, Widget current, char* name_) { \
    (void)source_text, (void)current, (void)name_;                                      \
  }

DIALOGUE(font)
DIALOGUE(colour)
DIALOGUE(pixmap)
DIALOGUE(string)
DIALOGUE(fsb)
