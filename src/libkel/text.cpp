#include "libkel/text.h"

#include <X11/Intrinsic.h>
#include <absl/container/flat_hash_set.h>

#include <cstddef>
#include <functional>

namespace {

std::uint32_t hash_of(std::string_view s) { return static_cast<std::uint32_t>(std::hash<std::string_view>{}(s)); }

/// Characters that are looked for, with their hash.
struct Wanted {
  std::string_view characters;
  std::uint32_t hash;
};

}  // namespace

/// Every text there is, once.
struct Text::Table {
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const Shared* shared) const { return spread(shared->hash); }
    std::size_t operator()(const Wanted& wanted) const { return spread(wanted.hash); }
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(const Shared* a, const Shared* b) const { return a == b; }
    bool operator()(const Shared* a, const Wanted& b) const {
      return a->hash == b.hash && std::string_view(a->characters, a->size) == b.characters;
    }
  };
  absl::flat_hash_set<Shared*, Hash, Equal> texts;
};

Text::Table& Text::table() {
  static Table& all = *new Table;  // never destroyed: texts in static storage outlive it otherwise
  return all;
}

Text::Shared* Text::share(std::string_view s) {
  const Wanted wanted{s, hash_of(s)};
  Shared* shared = *table().texts.lazy_emplace(wanted, [&](const auto& put) { put(make(s, wanted.hash)); });
  ++shared->references;
  return shared;
}

Text::Shared* Text::make(std::string_view s, std::uint32_t hash) {
  auto* shared =
      reinterpret_cast<Shared*>(XtMalloc(static_cast<Cardinal>(offsetof(Shared, characters) + s.size() + 1)));
  shared->references = 0;
  shared->hash = hash;
  shared->size = s.size() & 0x7FFFFFFF;
  shared->has_percent = s.find('%') != std::string_view::npos;
  s.copy(shared->characters, s.size());
  shared->characters[s.size()] = '\0';
  return shared;
}

void Text::release(Shared* shared) {
  table().texts.erase(shared);
  XtFree(reinterpret_cast<char*>(shared));
}
