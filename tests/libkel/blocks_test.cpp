#include "libkel/blocks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

namespace {

bool memory_is_short = false;

void* allocate(std::size_t size) { return memory_is_short ? nullptr : std::malloc(size); }

using Memory = Blocks<allocate, std::free>;

/// Fills each thing with a byte of its own, so that one that lies in another changes it.
class Things {
 public:
  ~Things() {
    for (auto [memory, size] : things_) Memory::give_back(memory, size);
  }
  void* take(std::size_t size) {
    void* memory = Memory::take(size);
    std::memset(memory, mark(things_.size()), size);
    things_.emplace_back(static_cast<unsigned char*>(memory), size);
    return memory;
  }
  bool intact() const {
    for (std::size_t i = 0; i < things_.size(); ++i) {
      for (std::size_t at = 0; at < things_[i].second; ++at) {
        if (things_[i].first[at] != mark(i)) return false;
      }
    }
    return true;
  }

 private:
  static unsigned char mark(std::size_t i) { return static_cast<unsigned char>(i * 7 + 1); }
  std::vector<std::pair<unsigned char*, std::size_t>> things_;
};

TEST(Blocks, KeepThingsOfAllSizesApart) {
  Things things;
  for (int round = 0; round < 50; ++round) {
    for (std::size_t size : {1U, 7U, 8U, 9U, 48U, 500U, 511U, 512U, 513U, 5000U}) things.take(size);
  }
  EXPECT_TRUE(things.intact());
}

TEST(Blocks, KeepApartMoreThanOneBlockHolds) {
  Things things;
  for (int i = 0; i < 3000; ++i) things.take(40);
  EXPECT_TRUE(things.intact());
}

TEST(Blocks, AlignWhatTheyGive) {
  Things things;
  for (std::size_t size = 1; size < 64; ++size) {
    EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(things.take(size)) % alignof(void*)) << size;
  }
}

TEST(Blocks, KeepApartWhatIsTakenAfterGivingBack) {
  std::vector<void*> some;
  for (int i = 0; i < 100; ++i) some.push_back(Memory::take(24));
  for (std::size_t i = 0; i < some.size(); i += 2) Memory::give_back(some[i], 24);
  Things things;
  for (int i = 0; i < 100; ++i) things.take(24);
  for (std::size_t i = 1; i < some.size(); i += 2) std::memset(some[i], 0, 24);
  EXPECT_TRUE(things.intact());
  for (std::size_t i = 1; i < some.size(); i += 2) Memory::give_back(some[i], 24);
}

TEST(Blocks, GiveNullWhenMemoryIsShort) {
  memory_is_short = true;
  EXPECT_EQ(nullptr, Memory::take(400));
  EXPECT_EQ(nullptr, Memory::take(5000));
  memory_is_short = false;
  Things things;
  EXPECT_NE(nullptr, things.take(400));
}

// The last, since after it `allocate` is no longer asked for blocks.
TEST(Blocks, KeepApartWhatNeedsHugePages) {
  using Large = Blocks<std::malloc, std::free>;
  std::vector<std::uint32_t*> things;
  for (std::uint32_t i = 0; i < 20000; ++i) {
    things.push_back(static_cast<std::uint32_t*>(Large::take(400)));
    std::fill_n(things.back(), 100, i);
  }
  for (std::uint32_t i = 0; i < things.size(); ++i) EXPECT_EQ(100, std::count(things[i], things[i] + 100, i)) << i;
  for (std::uint32_t* thing : things) Large::give_back(thing, 400);
}

}  // namespace
