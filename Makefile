# Two entry points for people: `make demo` and `make test`. Both install what
# they need on Debian 12, configure into build/ and build before they run.
BUILD    ?= build
JOBS     ?= $(shell nproc)
CMAKE_ARGS ?=
# ccache (when installed) shares its results between clones of the project.
export CCACHE_BASEDIR := $(CURDIR)
export CCACHE_NOHASHDIR := 1
# make test also runs the provider inside the real object managers (not for
# sanitizer builds: an object manager cannot load a sanitized provider).
CIMOM_TESTS ?= yes

.PHONY: all deps configure build test demo asan tsan stress fuzz clean cimom-build cimom-test sfcb-test pegasus-test bench-cimom

all: build

deps:
	@scripts/install-deps.sh
	@scripts/install-fuzz-deps.sh

configure: deps
	@cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_ARGS) >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

test: build
	@ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)
	@if [ "$(CIMOM_TESTS)" = yes ]; then scripts/cimom-test.sh all $(BUILD); fi

demo: build
	@scripts/demo.sh $(BUILD)

# Sanitizer runs of the whole suite, each in its own build tree.
asan:
	@$(MAKE) --no-print-directory test BUILD=build-asan CIMOM_TESTS=no CMAKE_ARGS="-DVEX_SANITIZE=address -DVEX_BUILD_BENCH=OFF"

tsan:
	@$(MAKE) --no-print-directory test BUILD=build-tsan CIMOM_TESTS=no CMAKE_ARGS="-DVEX_SANITIZE=thread -DVEX_BUILD_BENCH=OFF"

# The provider inside the real object managers of ../shared (as root; skipped
# with one line when they are not there): one run per object manager.
cimom-build: configure
	@cmake --build $(BUILD) -j $(JOBS) --target vexRAIDProvider15 vexraid vex_registration

cimom-test: cimom-build
	@scripts/cimom-test.sh all $(BUILD)

sfcb-test: cimom-build
	@scripts/cimom-test.sh sfcb $(BUILD)

pegasus-test: cimom-build
	@scripts/cimom-test.sh pegasus $(BUILD)

# The provider against sfcb's own repository, on the demo system and on a
# generated 8 x 256 system: min/median per operation and the ratio (as root;
# skipped with one line without ../shared/cimom).
bench-cimom: configure
	@cmake --build $(BUILD) -j $(JOBS) --target vexRAIDProvider15 vex_registration storvex-sim
	@scripts/bench-cimom.sh $(BUILD)

# The stress run (tests/stress) for STRESS_SECONDS under ASan/UBSan, then
# under TSan; the suite runs it for a minute in the plain build. Under TSan
# the simulator re-reads its state tens of times slower, and requests queue
# behind a cache rebuild for minutes: a request counts as stuck after 600 s
# there (120 s otherwise).
STRESS_SECONDS ?= 600
stress:
	@$(MAKE) --no-print-directory configure BUILD=build-asan CMAKE_ARGS="-DVEX_SANITIZE=address -DVEX_BUILD_BENCH=OFF"
	@cmake --build build-asan -j $(JOBS) --target vex_stress
	@ASAN_OPTIONS=quarantine_size_mb=32 build-asan/tests/stress/vex_stress --seconds $(STRESS_SECONDS) --max-growth-mb 128
	@$(MAKE) --no-print-directory configure BUILD=build-tsan CMAKE_ARGS="-DVEX_SANITIZE=thread -DVEX_BUILD_BENCH=OFF"
	@cmake --build build-tsan -j $(JOBS) --target vex_stress
	@TSAN_OPTIONS=halt_on_error=1 build-tsan/tests/stress/vex_stress --seconds $(STRESS_SECONDS) --max-growth-mb 256 --stuck-seconds 600

# The libFuzzer targets in their own clang tree (build-fuzz), each run for
# FUZZ_SECONDS; make test runs each for a few seconds (test fuzz_smoke).
FUZZ_SECONDS ?= 300
fuzz: deps
	@scripts/fuzz.sh --tree build-fuzz --seconds $(FUZZ_SECONDS) --jobs $(JOBS)

clean:
	rm -rf build build-asan build-tsan build-fuzz
