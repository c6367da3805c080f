#ifndef VQC_CMD_EDITORS_KIT_SUGGESTIONS_H
#define VQC_CMD_EDITORS_KIT_SUGGESTIONS_H

// Names that a text field suggests in its drop-down list: those that match what stands in it, the best first.

#include <Xm/Xm.h>

#include <functional>
#include <string>
#include <vector>

namespace vqc::editors {

/// What a field suggests.
struct Suggestions {
  std::function<std::vector<std::string>()> names;                  // all that there are
  std::function<void(Widget field, const std::string& name)> take;  // the user has taken one
  void (*escaped)(Widget field) = nullptr;                          // he has put the list away
  bool while_typing = false;                                        // the list opens by itself
  bool of_words = false;                                            // they match the last word in the field only
};

/// Lets a field, which lives as long as the program, suggest names. Down opens the list, and typing narrows it.
void suggest(Widget field, const Suggestions& suggestions);

/// Lets a field be completed with these names. Nothing is put into it that the user has not taken.
void complete_from(Widget field, std::function<std::vector<std::string>()> names);
/// The same of a field in which several names stand with blanks between them: the last of them is completed.
void complete_words_from(Widget field, std::function<std::vector<std::string>()> names);

}  // namespace vqc::editors

#endif
