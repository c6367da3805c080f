// The registry of what the run-time supplies.

#include "vqc/cmd/model/builtin.h"

#include <algorithm>

namespace vqc {

std::list<BuiltinName>::const_iterator BuiltinNames::find(Text name, int kind) const {
  return std::ranges::find_if(names_,
                              [&](const BuiltinName& each) { return each.kind == kind && each.name == name.view(); });
}

const BuiltinName* BuiltinNames::add(Text name, int kind) {
  if (!name) return nullptr;
  const auto found = find(name, kind);
  return found != names_.end() ? &*found : &names_.emplace_front(BuiltinName{std::string(name.view()), kind});
}

bool BuiltinNames::remove(Text name, int kind) {
  const auto found = find(name, kind);
  if (!name || found == names_.end()) return false;
  names_.erase(found);
  return true;
}

bool BuiltinNames::has(Text name, int kind) const { return name && find(name, kind) != names_.end(); }

}  // namespace vqc
