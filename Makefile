# The commands for working on this project. Each command first installs missing packages and builds what has
# changed. No command asks a question.

JOBS ?= $(shell nproc)
ARGS ?=

.PHONY: run browser test asan tsan valgrind fuzz attack bench compare tidy docs packages install uninstall clean

run: build/release/.configured-run
	@cmake --build build/release -j $(JOBS) --target glyphorium-cli >build/release/build.log 2>&1 \
	  || { cat build/release/build.log; exit 1; }
	@scripts/show

# Starts the browser. ARGS="--search arrow" makes it search for "arrow" at once.
browser:
	@scripts/bootstrap browser
	@echo 'Building the window (some minutes the first time) ...' >&2
	@mkdir -p build/release && { cmake --preset release -DGLYPHORIUM_BUILD_BROWSER=ON && \
	  cmake --build build/release -j $(JOBS) --target glyphorium-browser; } >build/release/build.log 2>&1 \
	  || { cat build/release/build.log; exit 1; }
	@build/release/apps/browser/glyphorium-browser $(ARGS)

test:
	@scripts/bootstrap test
	cmake --preset test
	cmake --build --preset test -j $(JOBS)
	ctest --preset test -j $(JOBS)

# Run the whole test suite with the address or the thread sanitizer.
asan tsan:
	@scripts/bootstrap test
	cmake --preset $@
	cmake --build --preset $@ -j $(JOBS)
	ctest --preset $@ -j $(JOBS)

# Runs the tests of the C interface under valgrind. Fails if valgrind finds an error or lost memory.
valgrind:
	@scripts/bootstrap valgrind
	cmake --preset test
	cmake --build --preset test -j $(JOBS) --target glyphorium_tests
	valgrind --error-exitcode=1 --leak-check=full --show-leak-kinds=definite,indirect \
	  --errors-for-leak-kinds=definite,indirect build/test/tests/glyphorium_tests --gtest_filter='CHost*:CBadArguments*'

# Runs each fuzzer for FUZZ_SECONDS seconds.
FUZZ_SECONDS ?= 5
fuzz:
	@scripts/bootstrap fuzz
	cmake --preset fuzz -DGLYPHORIUM_FUZZ_SECONDS=$(FUZZ_SECONDS)
	cmake --build --preset fuzz -j $(JOBS)
	ctest --preset fuzz -j $(JOBS)

# Runs scripts/attack, which checks that stored data survives attacks. ARGS="settings 2000 kills" runs 2,000 rounds of
# one kind.
attack:
	@scripts/bootstrap test
	cmake --preset test
	cmake --build --preset test -j $(JOBS)
	@scripts/attack $(ARGS)

bench:
	@scripts/bootstrap bench
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	@scripts/measure $(ARGS) build/bench

# Measures whether the working tree is slower than a commit. ARGS=main compares it with the branch main.
compare:
	@scripts/bootstrap bench
	@scripts/compare-speed $(ARGS)

# Runs clang-tidy on all sources, which takes about half an hour. With ARGS="glyphorium/text apps/cli", only
# on the sources in these folders.
tidy:
	@scripts/bootstrap tidy
	cmake --preset tidy
	@JOBS=$(JOBS) scripts/tidy $(ARGS)

# Writes the reference of the library to build/release/docs/html.
docs:
	@scripts/bootstrap docs
	cmake --preset release -DGLYPHORIUM_BUILD_DOCS=ON
	cmake --build --preset release -j $(JOBS) --target docs

# Builds the Debian packages into build/debian. ARGS=--try installs, upgrades, purges and tests them in a new system.
packages:
	@scripts/debian-packages $(ARGS)

# Installs the library, the programs and the files by which desktops find them.
PREFIX ?= /usr/local
install:
	@scripts/bootstrap install
	cmake --preset release -DCMAKE_INSTALL_PREFIX=$(PREFIX) -DGLYPHORIUM_BUILD_SEARCH_PROVIDER=ON -DGLYPHORIUM_BUILD_BROWSER=ON
	cmake --build --preset release -j $(JOBS)
	cmake --install build/release
	@[ "$$(id -u)" != 0 ] || ldconfig  # programs find the library in /usr/local/lib
uninstall:
	cmake --build build/release --target uninstall

build/release/.configured-run:
	@scripts/bootstrap run
	@echo 'Building the catalog and its command line (a minute or two the first time) ...' >&2
	@mkdir -p build/release && cmake --preset release >build/release/configure.log 2>&1 \
	  || { cat build/release/configure.log; exit 1; }
	@touch $@

clean:
	rm -rf build
