// The help viewer: shows the pages that its client asks for, or that of a file.

#include <X11/Intrinsic.h>

#include <charconv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "desktop/search_path.h"
#include "help/viewer/client.h"
#include "help/viewer/make_window.h"
#include "help/viewer/viewer.h"
#include "help/viewer/window.h"

using namespace vqc;

using namespace help;

namespace {

/// Where the pages of each language are, below the installation.
constexpr const char* kHelpPath = "%R/lib/locale/%L/help/%N%S:%R/lib/locale/%l/help/%N%S:%R/lib/locale/C/help/%N%S";

/// What the command line asks for.
struct Arguments {
  Window client = None;
  const char* file = nullptr;
};

[[noreturn]] void give_up(const char* program, const char* reason) {
  std::fprintf(stderr, "%s: %s\n", program, reason);
  std::exit(1);
}

[[noreturn]] void explain_usage(const char* program) {
  std::fprintf(stderr, "usage: %s [-wid window | file]\n", program);
  std::exit(1);
}

/// The window with that number; None when it is none.
Window parse_window(const char* number) {
  Window id = None;
  const char* end = number + std::strlen(number);
  const auto [stop, error] = std::from_chars(number, end, id);
  return error == std::errc() && stop == end ? id : None;
}

Arguments parse_arguments(int argc, char** argv) {
  Arguments result;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "-wid") == 0 && i + 1 < argc) {
      result.client = parse_window(argv[++i]);
      if (result.client == None) explain_usage(argv[0]);
    } else if (argv[i][0] != '-' && !result.file) {
      result.file = argv[i];
    } else {
      explain_usage(argv[0]);
    }
  }
  return result;
}

/// The contents of the help pages in the user's language.
std::string find_contents(Display* display) {
  const char* set_root = std::getenv("VQROOT");
  std::string root = set_root ? set_root : "";
  SubstitutionRec substitution = {'R', root.data()};
  char* found = XtResolvePathname(display, "help", "entry", ".html", kHelpPath, &substitution, 1, nullptr);
  std::string file = found ? found : root + "/lib/locale/C/help/entry.html";
  XtFree(found);
  return file;
}

[[noreturn]] void serve_user(XtAppContext context) {
  for (;;) {
    XEvent event;
    XtAppNextEvent(context, &event);
    watch_client(event);
    XtDispatchEvent(&event);
  }
}

}  // namespace

int main(int argc, char** argv) {
  use_installation();
  XtSetLanguageProc(nullptr, nullptr, nullptr);
  XtToolkitInitialize();
  XtAppContext context = XtCreateApplicationContext();
  Display* display = XtOpenDisplay(context, nullptr, nullptr, "Vqhelp", nullptr, 0, &argc, argv);
  if (!display) give_up(argv[0], "cannot open display");
  std::setlocale(LC_NUMERIC, "C");  // resource files have decimal points
  const Arguments arguments = parse_arguments(argc, argv);
  make_window(display);
  if (arguments.client != None && !serve_client(window.shell, arguments.client, {show_file, quit})) quit();
  if (arguments.file) show_file(arguments.file);
  if (!arguments.file && arguments.client == None) show_file(find_contents(display));
  serve_user(context);
}
