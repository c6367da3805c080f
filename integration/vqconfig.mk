# Makes C from descriptions of widget sets, in any makefile for GNU make (4.2 or later):
#
#   include vqconfig.mk
#   dial: dial.o dial_config.o dial_code.o dial_stubs.o
#   clean: vqconfig-clean
#
# X_config.c, X_code.c and X_stubs.c come from each X.vqc: all or none, and none while the document has an error. What
# was written by hand in X_stubs.c stays, also in vqconfig-clean. These can be set before, or on the command line:
#
#   VQC                 the program
#   VQCFLAGS            options for vqc generate, such as --families, -I or --no-stubs; none that names a file or folder
#   VQCONFIG_DOCUMENTS  which documents; all of this folder without it
#   VQCONFIG_HEADERS    patterns of headers: a document is read again when one that matches appears or is gone

VQC ?= vqc
VQCONFIG_DOCUMENTS ?= $(wildcard *.vqc)
VQCONFIG_HEADERS ?= *.h

vqconfig-default-goal := $(.DEFAULT_GOAL)

# What the files are made with, beside the document.
vqconfig-circumstances := $(strip $(VQC) $(VQCFLAGS) $(sort $(wildcard $(VQCONFIG_HEADERS))))
vqconfig-quoted = '$(subst ','\'',$(1))'

# The files that come from X, and whether they can be as they have to be now.
vqconfig-generated = $(1)_config.c $(1)_code.c
vqconfig-files = $(vqconfig-generated) $(if $(filter --no-stubs,$(VQCFLAGS)),,$(1)_stubs.c)
vqconfig-lacks = $(filter-out $(wildcard $(vqconfig-files)),$(vqconfig-files))
vqconfig-differs = $(subst <$(vqconfig-circumstances)>,,<$(file <$(1).vqc-stamp)>)
vqconfig-outdated = $(or $(vqconfig-lacks),$(vqconfig-differs))
vqconfig-removable = $(vqconfig-generated) $(1).vqc-stamp

# Files that would not change keep their time, and so are older than a document that was touched. The stamp tells when
# they were last found right; the files have an empty recipe, after which make looks at their times again.
define vqconfig-rules
$(vqconfig-files): $(1).vqc-stamp ;

$(1).vqc-stamp: $(1).vqc $(if $(vqconfig-outdated),vqconfig-always)
	$$(VQC) generate $$(VQCFLAGS) $$<
	@printf '%s\n' $$(call vqconfig-quoted,$$(vqconfig-circumstances)) > $$@
endef

vqconfig-names := $(VQCONFIG_DOCUMENTS:.vqc=)
$(foreach name,$(vqconfig-names),$(eval $(call vqconfig-rules,$(name))))

# Removes what was generated. The stubs stay: they are written by hand.
vqconfig-clean:
	rm -f $(foreach name,$(vqconfig-names),$(call vqconfig-removable,$(name)))

vqconfig-always:

.PHONY: vqconfig-clean vqconfig-always

.DEFAULT_GOAL := $(vqconfig-default-goal)
