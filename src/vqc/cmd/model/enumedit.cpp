#include "vqc/cmd/model/enumedit.h"

EnumDef::~EnumDef() { enum_entry_kind.clear(entries); }
