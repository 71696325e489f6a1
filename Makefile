# Entry points. Each one installs missing Debian packages first.
PREFIX ?= /usr/local
JOBS ?= 2

CMAKE_FLAGS := -DCMAKE_BUILD_TYPE=RelWithDebInfo
SANITIZE_FLAGS := -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" -DVANTREL_BUILD_TOOLS=OFF
# Leaks reported from inside third-party process-wide caches are listed here, each with its reason.
# glib's slice allocator recycles memory across threads behind its own futex locks, which the
# sanitizers cannot see: with G_SLICE=always-malloc it allocates through malloc, which they can.
# Allocation stacks are unwound in full, so that suppressions can name the caches they are for.
SANITIZE_ENV := G_SLICE=always-malloc ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:fast_unwind_on_malloc=0 \
                LSAN_OPTIONS=suppressions=$(CURDIR)/tests/sanitizer/lsan.supp:print_suppressions=0 \
                UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

.PHONY: all deps build test test-plain test-asan test-tsan tsan-build tsan-soak soak test-fuzz fuzz fuzz-build gallery \
        gallery-golden bench install clean

all: build

deps:
	@scripts/install-deps

build: deps
	@cmake -S . -B build $(CMAKE_FLAGS) > /dev/null
	@cmake --build build -j $(JOBS)

test: test-plain test-asan test-tsan test-fuzz

test-plain: build
	cd build && ctest -j $(JOBS) --output-on-failure

test-asan: deps
	@cmake -S . -B build-asan $(SANITIZE_FLAGS) -DVANTREL_SANITIZE=address,undefined > /dev/null
	@cmake --build build-asan -j $(JOBS)
	cd build-asan && $(SANITIZE_ENV) ctest -j $(JOBS) --output-on-failure

TSAN_ENV := G_SLICE=always-malloc TSAN_OPTIONS=halt_on_error=1:suppressions=$(CURDIR)/tests/sanitizer/tsan.supp

tsan-build: deps
	@cmake -S . -B build-tsan $(SANITIZE_FLAGS) -DVANTREL_SANITIZE=thread -DVANTREL_ONLY_THREADED_TESTS=ON > /dev/null
	@cmake --build build-tsan -j $(JOBS)

# The threaded tests run a few seconds each here, TSAN_SECONDS each in tsan-soak.
test-tsan: tsan-build
	cd build-tsan && $(TSAN_ENV) ctest -j $(JOBS) -L threaded --output-on-failure

TSAN_SECONDS ?= 60
tsan-soak: tsan-build
	cd build-tsan && $(TSAN_ENV) VANTREL_THREAD_SECONDS=$(TSAN_SECONDS) ctest -j $(JOBS) -L threaded \
	    --timeout $$(( $(TSAN_SECONDS) * 3 + 300 )) --output-on-failure

# A long session in one plain process: every callout kind SOAK_ROUNDS times,
# resident memory compared after the warm-up and at the end. 'make test' runs
# 2,000 rounds.
SOAK_ROUNDS ?= 100000
soak: build
	build/tests/vantrel_soak $(SOAK_ROUNDS)

# The fuzz harnesses: clang's libFuzzer over a library built with the fuzzer's
# coverage and AddressSanitizer + UndefinedBehaviorSanitizer. 'make fuzz' runs
# each for FUZZ_SECONDS, 'make fuzz TARGET=svg' one; 'make test' runs each
# for FUZZ_RUNS inputs from its seeds.
FUZZ_SECONDS ?= 600
FUZZ_RUNS ?= 500
FUZZ_HARNESSES := svg custompath colour attributes utf8 textoffsets union callouts
FUZZ_FLAGS := -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O2 -g" -DCMAKE_CXX_COMPILER=clang++-14 \
              -DVANTREL_SANITIZE=fuzzer-no-link,address,undefined -DVANTREL_BUILD_FUZZ=ON \
              -DVANTREL_BUILD_TESTS=OFF -DVANTREL_BUILD_TOOLS=OFF

fuzz-build: deps
	@cmake -S . -B build-fuzz $(FUZZ_FLAGS) > /dev/null
	@cmake --build build-fuzz -j $(JOBS)

fuzz: fuzz-build
	scripts/run-fuzz build-fuzz seconds $(FUZZ_SECONDS) $(or $(TARGET),$(FUZZ_HARNESSES))

test-fuzz: fuzz-build
	scripts/run-fuzz build-fuzz runs $(FUZZ_RUNS) $(FUZZ_HARNESSES)

gallery: build
	build/tools/vantrel/vantrel gallery -o gallery.png
	@echo "wrote gallery.png"

# The image the gallery test compares with, after an intended change.
gallery-golden: build
	build/tools/vantrel/vantrel gallery -o tests/tool/gallery.png
	@echo "wrote tests/tool/gallery.png"

bench: deps
	@cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DVANTREL_BUILD_BENCH=ON -DVANTREL_BUILD_TESTS=OFF \
	    -DVANTREL_BUILD_TOOLS=OFF > /dev/null
	@cmake --build build-bench -j $(JOBS)
	@scripts/run-benchmarks build-bench/bench

install: build
	cmake --install build --prefix $(PREFIX)

clean:
	rm -rf build build-asan build-tsan build-bench build-fuzz gallery.png
