#include "help/asking.h"

#include <X11/Shell.h>
#include <X11/StringDefs.h>
#include <X11/Xatom.h>

#include <cstdlib>
#include <sstream>

Asking::Asking(const std::string& name) : root(folder / name) {
  std::filesystem::create_directories(root + "/bin");
  setenv("VQROOT", root.c_str(), 1);
  shell = XtVaAppCreateShell("asking", "Asking", applicationShellWidgetClass, display, XtNwidth, 700, XtNheight, 700,
                             nullptr);
  XtRealizeWidget(shell);
  wait_for([&] { return is_viewable(XtWindow(shell)); });
}

void Asking::install(const std::string& command) const {
  const std::string file = root + "/bin/vqhelp";
  write_file(file, "#!/bin/sh\necho \"$*\" >> \"$VQROOT/launches\"\n" + command);
  std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

void Asking::install_real() const {
  install("echo $$ >> \"$VQROOT/processes\"\nexec '" VQHELP_PROGRAM "' \"$@\" 2>> \"$VQROOT/errors\"\n");
}

bool Asking::wait_for_launches(std::size_t count) const {
  return wait_for([&] { return launches().size() >= count; });
}

std::vector<std::string> Asking::lines_of(const std::string& note) const {
  std::vector<std::string> lines;
  const std::string file = root + "/" + note;
  if (!std::filesystem::exists(file)) return lines;
  std::istringstream text(read_file(file));
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

void announce(Display* by, Window viewer, Window client) {
  XChangeProperty(by, client, XInternAtom(by, "VQHELP_WIN", False), XA_WINDOW, 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(&viewer), 1);
  XSync(by, False);
}
