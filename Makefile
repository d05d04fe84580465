# The commands of this project. Each installs missing packages, builds what has changed and asks no question.

JOBS ?= $(shell nproc)
ARGS ?=

.PHONY: run test asan tsan fuzz attack bench install clean

run: build/release/.configured-run
	@cmake --build build/release -j $(JOBS) --target glyphorium-cli >build/release/build.log 2>&1 \
	  || { cat build/release/build.log; exit 1; }
	@scripts/show

test:
	@scripts/bootstrap test
	cmake --preset test
	cmake --build --preset test -j $(JOBS)
	ctest --preset test -j $(JOBS)

# The whole test suite once more under a sanitizer.
asan tsan:
	@scripts/bootstrap test
	cmake --preset $@
	cmake --build --preset $@ -j $(JOBS)
	ctest --preset $@ -j $(JOBS)

# The fuzzers, each for as many seconds.
FUZZ_SECONDS ?= 5
fuzz:
	@scripts/bootstrap fuzz
	cmake --preset fuzz -DGLYPHORIUM_FUZZ_SECONDS=$(FUZZ_SECONDS)
	cmake --build --preset fuzz -j $(JOBS)
	ctest --preset fuzz -j $(JOBS)

# Attacks on what the user has stored: ARGS="settings 2000 kills" makes 2,000 of one kind.
attack:
	@scripts/bootstrap test
	cmake --preset test
	cmake --build --preset test -j $(JOBS)
	@scripts/attack $(ARGS)

bench:
	@scripts/bootstrap bench
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	@for b in build/bench/benchmarks/*_benchmark; do dbus-run-session -- "$$b" $(ARGS) || exit 1; done

# Installs the library, the programs and what a desktop needs to find them.
PREFIX ?= /usr/local
install:
	@scripts/bootstrap install
	cmake --preset release -DCMAKE_INSTALL_PREFIX=$(PREFIX) -DGLYPHORIUM_BUILD_SEARCH_PROVIDER=ON
	cmake --build --preset release -j $(JOBS)
	cmake --install build/release

build/release/.configured-run:
	@scripts/bootstrap run
	@echo 'Building the catalog and its command line (a minute or two the first time) ...' >&2
	@mkdir -p build/release && cmake --preset release >build/release/configure.log 2>&1 \
	  || { cat build/release/configure.log; exit 1; }
	@touch $@

clean:
	rm -rf build
