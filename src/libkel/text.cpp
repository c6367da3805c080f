#include "libkel/text.h"

#include <cstddef>
#include <new>
#include <vector>

#include "libkel/blocks.h"

namespace {

void* allocate(std::size_t size) { return ::operator new(size); }
void release(void* memory) { ::operator delete(memory); }
using Memory = Blocks<allocate, release>;

/// Any `Number` may begin at any character.
template <class Number>
std::uint64_t number_at(const char* from) {
  Number number;
  std::memcpy(&number, from, sizeof number);
  return number;
}

/// The last eight characters as a number, or as many as there are.
std::uint64_t last_characters(std::string_view s) {
  const char* end = s.data() + s.size();
  if (s.size() >= 8) return number_at<std::uint64_t>(end - 8);
  if (s.size() >= 4) return number_at<std::uint32_t>(s.data()) << 32 | number_at<std::uint32_t>(end - 4);
  std::uint64_t number = 0;
  for (char c : s) number = number << 8 | static_cast<unsigned char>(c);
  return number;
}

/// Both halves of the product with a number that is as good as random: each bit shows everywhere.
std::uint64_t mixed(std::uint64_t number) {
  __extension__ using Product = unsigned __int128;
  const Product product = Product{number} * 0x9E3779B97F4A7C15;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

/// Eight characters at a time: names are short, and are hashed more often than anything else is done to them.
std::uint32_t hash_of(std::string_view s) {
  std::uint64_t hash = s.size();
  for (std::string_view rest = s; rest.size() > 8; rest.remove_prefix(8)) {
    hash = mixed(hash ^ number_at<std::uint64_t>(rest.data()));
  }
  return static_cast<std::uint32_t>(mixed(hash ^ last_characters(s)));
}

}  // namespace

/// Every text there is, once. A text stands in the slot that its hash says, or in the next that was free then. Its hash
/// stands beside it, so that neither a search nor growing looks at the characters of other texts.
class Text::Table {
 public:
  Shared* find_or_make(std::string_view s) {
    const std::uint32_t hash = hash_of(s);
    Shared* found = slot_for(s, hash).text;
    return found ? found : insert(s, hash);
  }

  void erase(const Shared* text) {
    const Slot& slot = slot_for(text->view(), hash_of(text->view()));
    auto hole = static_cast<std::size_t>(&slot - slots_.data());
    // What was put behind its own slot because of this text, or of one that moves here, moves up.
    for (std::size_t i = after(hole); slots_[i].text; i = after(i)) {
      const bool may_move = ((i - slots_[i].hash) & mask()) >= ((i - hole) & mask());
      if (may_move) slots_[std::exchange(hole, i)] = slots_[i];
    }
    slots_[hole] = {};
    --used_;
  }

 private:
  struct [[gnu::packed]] Slot {  // there are as many as texts, and up to twice that while they double
    Shared* text;
    std::uint32_t hash;
  };

  std::size_t mask() const { return slots_.size() - 1; }
  std::size_t after(std::size_t i) const { return (i + 1) & mask(); }

  /// The slot of the text `s`, or the free one where it should be put.
  Slot& slot_for(std::string_view s, std::uint32_t hash) {
    std::size_t i = hash & mask();
    while (slots_[i].text && !(slots_[i].hash == hash && slots_[i].text->view() == s)) i = after(i);
    return slots_[i];
  }

  /// No text has a NUL in it: only characters that were not found need to be searched for one.
  [[gnu::noinline]] Shared* insert(std::string_view s, std::uint32_t hash) {
    if (const std::size_t size = s.find('\0'); size != std::string_view::npos) return find_or_make(s.substr(0, size));
    if (used_ >= slots_.size() / 4 * 3) grow();
    Shared* text = make(s);
    slot_for(s, hash) = {text, hash};
    ++used_;
    return text;
  }

  void grow() {
    std::vector<Slot> old(slots_.size() * 2);
    old.swap(slots_);
    for (const Slot& slot : old) {
      if (!slot.text) continue;
      std::size_t i = slot.hash & mask();
      while (slots_[i].text) i = after(i);
      slots_[i] = slot;
    }
  }

  std::vector<Slot> slots_ = std::vector<Slot>(512);  // always a power of two
  std::size_t used_ = 0;
};

Text::Table& Text::table() {
  static Table& all = *new Table;  // never destroyed: texts in static storage outlive it otherwise
  return all;
}

Text::Shared* Text::share(std::string_view s) {
  Shared* shared = table().find_or_make(s);
  ++shared->references;
  return shared;
}

/// What a text of `size` characters takes.
std::size_t Text::Shared::memory_for(std::size_t size) { return offsetof(Shared, characters) + size + 1; }

Text::Shared* Text::make(std::string_view s) {
  auto* shared = static_cast<Shared*>(Memory::take(Shared::memory_for(s.size())));
  shared->references = 0;
  shared->size = s.size() & 0x7FFFFFFF;
  shared->has_percent = s.find('%') != std::string_view::npos;
  s.copy(shared->characters, s.size());
  shared->characters[s.size()] = '\0';
  return shared;
}

void Text::release(Shared* shared) {
  table().erase(shared);
  Memory::give_back(shared, Shared::memory_for(shared->size));
}
