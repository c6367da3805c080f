# The front door. Every target installs what it needs first; scripts/ and CMakePresets.json hold the details.

PREFIX ?= /usr/local
DESTDIR ?=
FUZZ_SECONDS ?= 60

RELEASE = build/release
JOBS = --parallel $(shell nproc)
JOBS_ON_DISPLAY = --parallel $(shell echo $$((3 * $$(nproc))))  # they wait half of the time
SOURCES = git ls-files '*.cpp' '*.h'

.PHONY: all run test check bench fuzz screenshots install deb deb-test format lint clean

all:
	@scripts/install-packages build
	@scripts/configure release -DBUILD_TESTING=OFF
	@cmake --build $(RELEASE)

# Generates from the shipped example, compiles what comes out, and runs it; then opens the example in the editor.
run: all
	@scripts/install-packages run
	@$(MAKE) --no-print-directory -C examples/runtime run VQCONFIG=$(CURDIR)/$(RELEASE)/vqconfig OUT=$(CURDIR)/build/example
	@scripts/edit $(RELEASE)/vqconfig examples/Athena.vqc

# Everything under the sanitizers, what needs no display also as it is shipped, and each fuzzer for a moment.
test:
	@scripts/install-packages build run test
	@scripts/configure asan
	@cmake --build build/asan
	ctest --preset asan $(JOBS_ON_DISPLAY)
	@scripts/configure fuzz
	@cmake --build build/fuzz --target fuzzers
	ctest --preset fuzz -R '^fuzz_.*_run$$' $(JOBS)
	@scripts/configure release -DBUILD_TESTING=ON
	@cmake --build $(RELEASE)
	@cmake --build $(RELEASE) --target all_verify_interface_header_sets
	ctest --preset release $(JOBS)

# What takes no more than a moment, for work in progress: all that needs no display, under the sanitizers.
check:
	@scripts/install-packages build run test
	@scripts/configure asan
	@cmake --build build/asan
	ctest --preset asan $(JOBS) -LE gui

bench:
	@scripts/install-packages build run bench
	@scripts/configure release -DBUILD_TESTING=OFF
	@cmake --build $(RELEASE) --target vqconfig vqc bench_tools
	python3 bench/bench.py --vqconfig $(RELEASE)/vqconfig --tools $(RELEASE)/bench
	xvfb-run -a python3 bench/bench_editor.py --tools $(RELEASE)

fuzz:
	@scripts/install-packages build test
	@scripts/configure fuzz
	@cmake --build build/fuzz --target fuzzers
	FUZZ_SECONDS=$(FUZZ_SECONDS) cmake --build build/fuzz --target fuzz

# The pictures in docs/, again.
screenshots: all
	@scripts/install-packages run screenshots
	scripts/screenshots $(RELEASE)/vqconfig

install: all
	DESTDIR=$(DESTDIR) cmake --install $(RELEASE) --prefix $(PREFIX)
	@[ -n "$(DESTDIR)" ] || scripts/tell-desktop $(PREFIX)/share

# The Debian packages, in build/deb, and what lintian says.
deb:
	@scripts/install-packages build packages
	@scripts/build-packages

# The packages as a newcomer meets them: installed and used in a bare Debian tree.
deb-test: deb
	@tests/packages/bare_tree.sh build/deb

format:
	@scripts/install-packages lint
	$(SOURCES) | xargs clang-format -i

lint:
	@scripts/install-packages build test lint
	$(SOURCES) | xargs clang-format --dry-run -Werror
	@scripts/configure asan
	git ls-files 'src/*.cpp' | xargs -P 2 -n 1 clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option -p build/asan

clean:
	rm -rf build
