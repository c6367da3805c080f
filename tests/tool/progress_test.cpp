#include "vqc/tool/progress.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>

#include <poll.h>
#include <pty.h>
#include <unistd.h>

using namespace vqc;
using namespace std::chrono_literals;

namespace {

/// A terminal, and who looks at it.
class Terminal {
 public:
  Terminal() {
    if (openpty(&user_, &program_, nullptr, nullptr, nullptr) != 0) throw std::runtime_error("no terminal");
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    close(user_);
    close(program_);
  }

  int program() const { return program_; }

  /// What has been written since the last look. Waits for a first part of it, but not for ever.
  std::string seen(std::chrono::milliseconds wait = 5s) const {
    std::string text;
    pollfd input{user_, POLLIN, 0};
    const auto for_the_rest = std::min<std::chrono::milliseconds>(wait, 100ms);
    while (poll(&input, 1, static_cast<int>((text.empty() ? wait : for_the_rest).count())) == 1) {
      std::array<char, 256> part;
      const ssize_t size = read(user_, part.data(), part.size());
      if (size <= 0) break;
      text.append(part.data(), static_cast<std::size_t>(size));
    }
    return text;
  }

 private:
  int user_ = -1;
  int program_ = -1;
};

const std::string kEmptyLine = "\r\033[K";

TEST(Progress, IsShownWhenItTakesLongerThanAMoment) {
  const Terminal terminal;
  {
    Progress progress(terminal.program(), 50ms);
    progress.show("checking ...");
    EXPECT_EQ(kEmptyLine + "checking ...", terminal.seen());
    progress.show("writing ...");
    EXPECT_EQ(kEmptyLine + "writing ...", terminal.seen());
  }
  EXPECT_EQ(kEmptyLine, terminal.seen());
}

TEST(Progress, IsNotShownForAMoment) {
  const Terminal terminal;
  {
    Progress progress(terminal.program(), 1h);
    progress.show("checking ...");
    progress.show("writing ...");
  }
  EXPECT_EQ("", terminal.seen(0ms));
}

TEST(Progress, MakesRoomForWhatIsWritten) {
  const Terminal terminal;
  Progress progress(terminal.program(), 1ms);
  progress.show("checking ...");
  EXPECT_EQ(kEmptyLine + "checking ...", terminal.seen());
  progress.show("");
  EXPECT_EQ(kEmptyLine, terminal.seen());
  progress.show("");
  EXPECT_EQ("", terminal.seen(0ms));
}

TEST(Progress, IsForTerminalsOnly) {
  int ends[2];
  ASSERT_EQ(0, pipe(ends));
  {
    Progress progress(ends[1], 1ms);
    progress.show("checking ...");
    std::this_thread::sleep_for(50ms);
  }
  close(ends[1]);
  char byte;
  EXPECT_EQ(0, read(ends[0], &byte, 1));
  close(ends[0]);
}

}  // namespace
