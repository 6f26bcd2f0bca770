# Varnelt EC3 — the two commands of the quick start:
#   make run    install what is missing, build, start the desktop program on the default project
#   make test   install what is missing, build, run every test through CTest
#   make install PREFIX=...   the programs, data files, help, desktop entry and file type under PREFIX
#   make package              the Debian package (CPack), build/varnelt_<version>_<arch>.deb

BUILD     ?= build
ASAN      ?= build-asan
FUZZ      ?= build-fuzz
FUZZ_TIME ?= 60
# What each fuzz target is given: by default FUZZ_TIME seconds; FUZZ_FLAGS=-runs=1000000 for a count.
FUZZ_FLAGS ?= -max_total_time=$(FUZZ_TIME)
# An input slower than FUZZ_TIMEOUT seconds counts as a hang. CI, on a machine that may be busy,
# gives 10 s, so that only a real hang (or a crash) fails it; a long run by hand keeps 1 s.
FUZZ_TIMEOUT ?= 1
FUZZ_TARGETS := project_reader settings_files events
JOBS      ?= $(shell nproc)
PREFIX    ?= /usr/local
PACKAGES  := cmake ninja-build g++ pkg-config googletest libgtest-dev libgmock-dev libbenchmark-dev unzip \
             libxlsxwriter-dev libeigen3-dev qt6-base-dev libqt6svg6 xvfb xauth locales \
             dpkg-dev desktop-file-utils shared-mime-info

SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)

.PHONY: all deps configure build run install package test test-comma test-sanitize fuzz format format-check bench clean

all: build

# Installs only the packages that are not there yet.
deps:
	@missing=""; for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "install ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  $(SUDO) apt-get update -qq && DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq $$missing; \
	fi

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Release

configure: deps $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# The desktop program; with no display at hand it runs on a virtual one (xvfb-run). Only the program
# that starts is built (with the data files beside it), not the tests and benchmarks.
run: configure
	@if grep -q '^build bin/varnelt:' $(BUILD)/build.ninja; then \
	  cmake --build $(BUILD) -j $(JOBS) --target varnelt; \
	else \
	  cmake --build $(BUILD) -j $(JOBS) --target varnelt-cli; \
	fi
	@if [ ! -x $(BUILD)/bin/varnelt ]; then \
	  echo "The desktop program was not built (no Qt 6): the command line instead."; \
	  $(BUILD)/bin/varnelt-cli; \
	elif [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  $(BUILD)/bin/varnelt; \
	else \
	  echo "No display: varnelt runs under xvfb-run."; \
	  xvfb-run -a $(BUILD)/bin/varnelt; \
	fi

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# varnelt and varnelt-cli in PREFIX/bin, the data files and the help in PREFIX/share/varnelt, where
# the programs look for them, the desktop entry, the file type of *.vnt and the icons.
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

# The Debian package; its dependencies are the libraries the binaries link to (dpkg-shlibdeps) and
# Qt's SVG plugin. Install it with apt-get install ./$(BUILD)/varnelt_*.deb.
package: build
	cd $(BUILD) && cpack -G DEB

# The whole suite once more where the user's locale writes a decimal comma.
test-comma: build
	@locale -a 2>/dev/null | grep -qi '^de_DE.utf-\?8$$' || $(SUDO) localedef -i de_DE -f UTF-8 de_DE.UTF-8
	cd $(BUILD) && LC_ALL=de_DE.UTF-8 ctest --output-on-failure -j $(JOBS)

# The layout of the sources (.clang-format): `make format` rewrites them, `make format-check` fails
# on a file that differs.
SOURCES = $(shell find src tests bench tools fuzz -name '*.cpp' -o -name '*.h')
format:
	clang-format -i $(SOURCES)
format-check:
	@command -v clang-format >/dev/null || { $(SUDO) apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq clang-format; }
	@clang-format --dry-run --Werror $(SOURCES) && echo "format-check: every source keeps .clang-format"

# The core tests once more under AddressSanitizer and UndefinedBehaviorSanitizer (without the
# desktop program: the leak checker would report the libraries' own caches).
test-sanitize: deps
	cmake -S . -B $(ASAN) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVARNELT_SANITIZE=ON -DVARNELT_BENCH=OFF -DVARNELT_FORMS=OFF
	cmake --build $(ASAN) -j $(JOBS)
	cd $(ASAN) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

# The fuzz targets (fuzz/), built with clang in their own folder, each run for FUZZ_TIME seconds
# from its seed corpus. New inputs found go to $(FUZZ)/corpus, a failing one to $(FUZZ)/artifacts.
fuzz: deps
	@command -v clang++ >/dev/null || { $(SUDO) apt-get update -qq && \
	  DEBIAN_FRONTEND=noninteractive $(SUDO) apt-get install -y -qq clang; }
	cmake -S . -B $(FUZZ) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
	  -DVARNELT_FUZZ=ON -DVARNELT_TESTS=OFF -DVARNELT_BENCH=OFF -DVARNELT_FORMS=OFF
	cmake --build $(FUZZ) -j $(JOBS) --target $(addprefix fuzz_,$(FUZZ_TARGETS))
	@mkdir -p $(FUZZ)/artifacts
	@for t in $(FUZZ_TARGETS); do \
	  mkdir -p $(FUZZ)/corpus/$$t; \
	  dict=""; [ -f fuzz/$$t.dict ] && dict="-dict=fuzz/$$t.dict"; \
	  echo "== fuzz_$$t"; \
	  ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	  $(FUZZ)/bin/fuzz_$$t $(FUZZ_FLAGS) -timeout=$(FUZZ_TIMEOUT) -rss_limit_mb=2048 -print_final_stats=1 $$dict \
	    -artifact_prefix=$(FUZZ)/artifacts/$$t- $(FUZZ)/corpus/$$t fuzz/corpus/$$t || exit 1; \
	done

bench: build
	$(BUILD)/bin/varnelt_bench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true

clean:
	rm -rf $(BUILD) $(ASAN) $(FUZZ)
