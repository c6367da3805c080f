#ifndef SUPPORT_MESSAGES_H
#define SUPPORT_MESSAGES_H

#include <map>
#include <string>
#include <vector>

#include "libkel/message.h"

using namespace vqc;

/// Stands in for the error box and the resource file: keeps what is shown, and knows the texts it has been given.
class RecordedMessages {
 public:
  RecordedMessages() {
    active_ = this;
    message_sink = &kSink;
  }
  RecordedMessages(const RecordedMessages&) = delete;
  RecordedMessages& operator=(const RecordedMessages&) = delete;
  ~RecordedMessages() {
    message_sink = nullptr;
    active_ = nullptr;
  }

  std::vector<std::string> shown;
  std::map<std::string, std::string> texts;

 private:
  static const char* text_of(const char* name) {
    auto found = active_->texts.find(name);
    return found == active_->texts.end() ? "" : found->second.c_str();
  }
  static void show(const char* text) { active_->shown.emplace_back(text); }

  static constexpr MessageSink kSink{text_of, show};
  inline static RecordedMessages* active_ = nullptr;
};

using Messages = std::vector<std::string>;

#endif
