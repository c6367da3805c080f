// Shows boxes that ask for a file, and puts together the path that the user has chosen.

#include "vqc/cmd/editors/kit/file_box.h"

#include <Xm/FileSB.h>

#include <filesystem>
#include <string>

#include "libkel/leafnm.h"
#include "libkel/message.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/fields.h"

namespace vqc::editors {

namespace {

std::string folder_of(const char* document) {
  std::error_code unknown;
  const bool named = document && *document;
  return std::filesystem::absolute(named ? document : "any name", unknown).parent_path();
}

}  // namespace

void show_file_box(Widget box, const char* document, const std::string& name) {
  XtVaSetValues(box, XmNdirectory, CompoundString(folder_of(document).c_str()).get(), nullptr);
  XmFileSelectionDoSearch(box, nullptr);
  show_dialog(box, Place::over);
  offer_name(XmFileSelectionBoxGetChild(box, XmDIALOG_TEXT), name);
}

std::string name_in_box(Widget box, const std::string& path) {
  unsigned char mode = XmPATH_MODE_FULL;
  XtVaGetValues(box, XmNpathMode, &mode, nullptr);
  return mode == XmPATH_MODE_RELATIVE ? leafnm(path.c_str()) : path;
}

std::string chosen_path(Widget box, XtPointer call) {
  const std::string path = text_of(static_cast<XmFileSelectionBoxCallbackStruct*>(call)->value);
  if (path.empty()) return "";
  // The box has put it together from what its field shows, which may not be all of the name that was offered.
  Widget field = XmFileSelectionBoxGetChild(box, XmDIALOG_TEXT);
  std::string whole = undistorted(field, path);
  if (whole != path) return whole;
  const char* leaf = leafnm(path.c_str());
  return std::string(path.c_str(), leaf).append(undistorted(field, leaf));
}

void title_file_box(Widget box, const char* resource_name) {
  XtVaSetValues(XtParent(box), XmNtitle, text_or_name(resource_name), nullptr);
}

}  // namespace vqc::editors
