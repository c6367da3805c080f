#ifndef VQC_CMD_EDITORS_KIT_UNAPPLIED_H
#define VQC_CMD_EDITORS_KIT_UNAPPLIED_H

// Fields that the user has changed, and that are in no record yet.

#include <Xm/Xm.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace vqc::editors {

/// What stands in fields, by the names of the fields.
using FieldValues = std::vector<std::pair<std::string, std::string>>;

/// A label that is as large as what it will say: that fields have not been applied.
Widget create_unapplied_note(Widget parent, char* name, ArgList, Cardinal);

/// From now on marks the text fields, toggles and option menus that differ from what the program has shown in them; a
/// form stands for all that it has. One button applies them together; `note`, which is empty otherwise, says so beside
/// it.
void watch_fields(std::initializer_list<Widget> all, Widget note);

/// For as long as the program shows something in a field. What has not been applied is left then.
class ShowingField {
 public:
  explicit ShowingField(Widget field);
  ShowingField(const ShowingField&) = delete;
  ShowingField& operator=(const ShowingField&) = delete;
  ~ShowingField();

 private:
  Widget field_;
};

/// What stands in a field, and in those that are applied together with it, is in the record now.
void note_applied(Widget field);
/// What stands in one of them is, whatever becomes of the others.
void note_one_applied(Widget field);
/// Brings all marks up to date.
void mark_unapplied();

/// What has not been applied; and what of that has been left since the last call.
FieldValues unapplied_fields();
FieldValues take_left_fields();
/// Puts into fields again what has been left.
void put_back(const FieldValues& values);

}  // namespace vqc::editors

#endif
