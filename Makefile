# Thin wrapper over CMake. `make run` and `make test` are all a new machine needs.
BUILD      ?= build
BUILD_ASAN ?= build-asan
BUILD_REL  ?= build-release
JOBS       ?= $(shell nproc)

.PHONY: all build run test test-asan test-tsan bench bench-pipeline bench-many bench-convert bench-read-model fuzz format format-check tidy install clean

all: build

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFEDECK_BUILD_BENCH=OFF

build: $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j $(JOBS)

# Builds everything, then checks the bundled example deck with the fedeck program.
run: build
	$(BUILD)/fedeck check examples/beam.inp

test: build
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

# Installs the library, its headers, the fedeck program, the CMake package
# and fedeck.pc under PREFIX.
PREFIX ?= /usr/local

install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

$(BUILD_ASAN)/CMakeCache.txt:
	cmake -S . -B $(BUILD_ASAN) -DCMAKE_BUILD_TYPE=Debug -DFEDECK_SANITIZE=ON -DFEDECK_BUILD_BENCH=OFF

test-asan: $(BUILD_ASAN)/CMakeCache.txt
	cmake --build $(BUILD_ASAN) -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
	  ctest --test-dir $(BUILD_ASAN) --output-on-failure -j $(JOBS)

# The many-deck check and the model entry on two threads under
# ThreadSanitizer: decks read on several threads at once share nothing but
# what is meant to be shared.
BUILD_TSAN ?= build-tsan

$(BUILD_TSAN)/CMakeCache.txt:
	cmake -S . -B $(BUILD_TSAN) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFEDECK_TSAN=ON -DFEDECK_BUILD_BENCH=OFF

test-tsan: $(BUILD_TSAN)/CMakeCache.txt
	cmake --build $(BUILD_TSAN) -j $(JOBS) --target test_fedeck_DeckBatch test_inp_CAPI_Model
	TSAN_OPTIONS="halt_on_error=1 second_deadlock_stack=1" $(BUILD_TSAN)/test_fedeck_DeckBatch
	TSAN_OPTIONS="halt_on_error=1 second_deadlock_stack=1" $(BUILD_TSAN)/test_inp_CAPI_Model \
	  --gtest_filter='ModelEntryThreads.*'

$(BUILD_REL)/CMakeCache.txt:
	cmake -S . -B $(BUILD_REL) -DCMAKE_BUILD_TYPE=Release -DFEDECK_BUILD_TESTS=OFF

bench: $(BUILD_REL)/CMakeCache.txt
	cmake --build $(BUILD_REL) -j $(JOBS)
	for b in $(BUILD_REL)/bench_*; do echo "== $$b"; $$b --benchmark_repetitions=5 --benchmark_report_aggregates_only=true; done

# The road of a new job, stage by stage, on the 100 x 100 x 100 flat deck
# and on a deck of 100 instances of a 50 x 50 x 50 part; then the whole road
# (fedeck check --json) beside the floor, medians of 5 runs. The floor is
# built from FLOOR when that file exists.
FLOOR      ?= ../shared/floor/floor.cpp
DECKS      ?= $(BUILD_REL)/decks

bench-pipeline: $(BUILD_REL)/CMakeCache.txt
	cmake --build $(BUILD_REL) -j $(JOBS) --target road_table fedeck_cli generate_deck
	mkdir -p $(DECKS)
	test -f $(DECKS)/flat-100.inp || $(BUILD_REL)/generate_deck 100 100 100 $(DECKS)/flat-100.inp
	test -f $(DECKS)/parts-50x100.inp || $(BUILD_REL)/generate_deck 50 50 50 100 $(DECKS)/parts-50x100.inp
	if [ -f $(FLOOR) ]; then g++ -O2 -std=c++20 -o $(BUILD_REL)/floor $(FLOOR); fi
	$(BUILD_REL)/road_table --fedeck $(BUILD_REL)/fedeck \
	  $$([ -f $(BUILD_REL)/floor ] && echo --floor $(BUILD_REL)/floor) \
	  $(DECKS)/flat-100.inp $(DECKS)/parts-50x100.inp

# 200 decks of about 1 MB each (22 x 22 x 22 flat decks) in one check, with
# -j 1 and with -j 2, medians of 5 runs.
bench-many: $(BUILD_REL)/CMakeCache.txt
	cmake --build $(BUILD_REL) -j $(JOBS) --target many_decks fedeck_cli generate_deck
	mkdir -p $(DECKS)/many
	test -f $(DECKS)/many/deck-199.inp || { $(BUILD_REL)/generate_deck 22 22 22 $(DECKS)/many/deck-0.inp && \
	  for i in $$(seq 1 199); do cp $(DECKS)/many/deck-0.inp $(DECKS)/many/deck-$$i.inp; done; }
	$(BUILD_REL)/many_decks --fedeck $(BUILD_REL)/fedeck $(DECKS)/many/deck-*.inp

# fedeck convert of the 100 x 100 x 100 flat deck beside fedeck check of it,
# medians of 5 runs.
bench-convert: $(BUILD_REL)/CMakeCache.txt
	cmake --build $(BUILD_REL) -j $(JOBS) --target convert_timing fedeck_cli generate_deck
	mkdir -p $(DECKS)
	test -f $(DECKS)/flat-100.inp || $(BUILD_REL)/generate_deck 100 100 100 $(DECKS)/flat-100.inp
	$(BUILD_REL)/convert_timing --fedeck $(BUILD_REL)/fedeck --out $(DECKS)/flat-100.vtu \
	  $(DECKS)/flat-100.inp

# fedeck.read_model of the same deck from Python (NumPy arrays), beside
# fedeck check of it, medians of 5 runs. PYTHON must have NumPy.
PYTHON ?= /usr/bin/python3

bench-read-model: $(BUILD_REL)/CMakeCache.txt
	cmake --build $(BUILD_REL) -j $(JOBS) --target fedeck_shared fedeck_cli generate_deck
	mkdir -p $(DECKS)
	test -f $(DECKS)/flat-100.inp || $(BUILD_REL)/generate_deck 100 100 100 $(DECKS)/flat-100.inp
	$(PYTHON) bench/read_model_timing.py --fedeck $(BUILD_REL)/fedeck \
	  --library $(BUILD_REL)/libfedeck.so --python $(PYTHON) $(DECKS)/flat-100.inp

# The parser under libFuzzer for a minute, starting from a copy of the seed
# corpus so the checked-in seeds stay as they are. A crash, a leak or an
# uncaught exception stops it with a non-zero status.
BUILD_FUZZ ?= build-fuzz
FUZZ_TIME  ?= 60

$(BUILD_FUZZ)/CMakeCache.txt:
	CXX=clang++ cmake -S . -B $(BUILD_FUZZ) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFEDECK_FUZZ=ON \
	  -DFEDECK_BUILD_TESTS=OFF -DFEDECK_BUILD_BENCH=OFF

fuzz: $(BUILD_FUZZ)/CMakeCache.txt
	cmake --build $(BUILD_FUZZ) -j $(JOBS) --target parser_fuzz
	rm -rf $(BUILD_FUZZ)/corpus && mkdir -p $(BUILD_FUZZ)/corpus && cp fuzz/corpus/* $(BUILD_FUZZ)/corpus/
	$(BUILD_FUZZ)/parser_fuzz -dict=fuzz/parser.dict -max_total_time=$(FUZZ_TIME) -max_len=8192 -print_final_stats=1 \
	  -artifact_prefix=$(BUILD_FUZZ)/ \
	  $(BUILD_FUZZ)/corpus

SOURCES = $(shell git ls-files '*.h' '*.cpp')

format:
	clang-format -i $(SOURCES)

# Fails when a tracked source is not formatted as .clang-format says.
format-check:
	@clang-format --dry-run --Werror $(SOURCES) && echo "clang-format: every tracked source is formatted"

# The library's sources under the checks of .clang-tidy, in parallel; any
# finding fails the target.
TIDY_SOURCES = $(filter %.cpp,$(filter-out tests/% bench/% fuzz/%,$(SOURCES)))

tidy: build
	@printf '%s\n' $(TIDY_SOURCES) | xargs -P $(JOBS) -n 4 clang-tidy -p $(BUILD) --quiet --warnings-as-errors='*'


clean:
	rm -rf $(BUILD) $(BUILD_ASAN) $(BUILD_REL) $(BUILD_FUZZ)
