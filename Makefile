# Thin wrapper over CMake. `make run` and `make test` are all a new machine needs.
BUILD      ?= build
BUILD_ASAN ?= build-asan
BUILD_REL  ?= build-release
JOBS       ?= $(shell nproc)

.PHONY: all build run test test-asan bench format tidy clean

all: build

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

# Until the command-line checker exists, `run` builds and runs the fastest
# subset of the suite: the keyword table and deck model tests.
run: build
	ctest --test-dir $(BUILD) -R "^(Keyword|RawData|QuotedText|InpItem|Deck)" --output-on-failure -j $(JOBS)

test: build
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

$(BUILD_ASAN)/CMakeCache.txt:
	cmake -S . -B $(BUILD_ASAN) -DCMAKE_BUILD_TYPE=Debug -DFEDECK_SANITIZE=ON -DFEDECK_BUILD_BENCH=OFF

test-asan: $(BUILD_ASAN)/CMakeCache.txt
	cmake --build $(BUILD_ASAN) -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --test-dir $(BUILD_ASAN) --output-on-failure -j $(JOBS)

$(BUILD_REL)/CMakeCache.txt:
	cmake -S . -B $(BUILD_REL) -DCMAKE_BUILD_TYPE=Release -DFEDECK_BUILD_TESTS=OFF

bench: $(BUILD_REL)/CMakeCache.txt
	cmake --build $(BUILD_REL) -j $(JOBS)
	for b in $(BUILD_REL)/bench_*; do echo "== $$b"; $$b --benchmark_repetitions=5 --benchmark_report_aggregates_only=true; done

SOURCES = $(shell git ls-files '*.h' '*.cpp')

format:
	clang-format -i $(SOURCES)

tidy: build
	clang-tidy -p $(BUILD) --quiet $(filter %.cpp,$(filter-out tests/% bench/%,$(SOURCES)))

clean:
	rm -rf $(BUILD) $(BUILD_ASAN) $(BUILD_REL)
