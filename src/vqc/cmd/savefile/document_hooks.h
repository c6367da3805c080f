#ifndef VQC_CMD_SAVEFILE_DOCUMENT_HOOKS_H
#define VQC_CMD_SAVEFILE_DOCUMENT_HOOKS_H

/// What follows a load or a save is the application's affair. Any of them may be null.
struct DocumentHooks {
  void (*titled)(const char* path) = nullptr;  // the document is now the one at `path`
  void (*saved)() = nullptr;                   // a save has finished
};
inline DocumentHooks document_hooks;

#endif
