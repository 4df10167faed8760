# Two entry points for a fresh machine: `make demo` and `make test`.
# Both install what is missing, then build with CMake and Ninja (and ccache).

BUILD_DIR      ?= build
ASAN_BUILD_DIR ?= build-asan
FUZZ_BUILD_DIR ?= build-fuzz
JOBS           ?= $(shell nproc)
FUZZ_SECONDS   ?= 60
CMAKE_FLAGS    ?=

# ccache keeps its cache in its default folder, outside the work tree; paths
# are taken relative to the tree, so that another clone reuses the objects.
export CCACHE_BASEDIR  ?= $(CURDIR)
export CCACHE_NOHASHDIR ?= 1


.PHONY: all deps build demo test asan fuzz fuzz-run bench format clean

all: build

deps:
	bash scripts/install-deps.sh

build: deps
	cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release $(CMAKE_FLAGS)
	cmake --build $(BUILD_DIR) -j $(JOBS)

demo: build
	bash scripts/render-examples.sh $(BUILD_DIR)/velarix examples out

asan: deps
	cmake -S . -B $(ASAN_BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	      -DVELARIX_SANITIZE=ON $(CMAKE_FLAGS)
	cmake --build $(ASAN_BUILD_DIR) -j $(JOBS)

test: asan
	cd $(ASAN_BUILD_DIR) && ASAN_OPTIONS=detect_leaks=1 \
	    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
	    ctest --output-on-failure -j $(JOBS)

fuzz: deps
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD_DIR) -G Ninja \
	    -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELARIX_FUZZ=ON $(CMAKE_FLAGS)
	cmake --build $(FUZZ_BUILD_DIR) -j $(JOBS) --target script_reader_fuzzer

fuzz-run: fuzz
	mkdir -p $(FUZZ_BUILD_DIR)/corpus
	cd $(FUZZ_BUILD_DIR) && ./fuzz/script_reader_fuzzer -max_total_time=$(FUZZ_SECONDS) \
	    -max_len=4096 -timeout=10 -dict=$(CURDIR)/fuzz/script.dict corpus $(CURDIR)/fuzz/corpus

format:
	find src tools tests fuzz bench -name '*.cpp' -o -name '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR) $(ASAN_BUILD_DIR) $(FUZZ_BUILD_DIR) out

bench: build
	$(BUILD_DIR)/velarix_bench
