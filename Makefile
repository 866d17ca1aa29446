# The everyday commands. Each one installs what it needs first (Debian packages, only what is
# missing) and works in build/<preset>; `make help` lists them.
SHELL := /bin/bash
.SHELLFLAGS := -euo pipefail -c
.DEFAULT_GOAL := help

JOBS ?= $(shell nproc)
CORPUS ?=
SECONDS ?= 60
export CTEST_PARALLEL_LEVEL ?= $(JOBS)

configure_flags := $(if $(CORPUS),-DKYR_CORPUS_DIR=$(abspath $(CORPUS)))
sample := samples/plain.xmi
imported := out/plain.json
drawn := samples/magicdraw-diagrams.xmi

.PHONY: help build run test soak fuzz coverage lint format bench packages clean deps-%

help: ## List the commands
	@grep -hE '^[a-z]+:.*## ' $(MAKEFILE_LIST) | sed -E 's/^([a-z]+):.*## (.*)/  make \1\t\2/' | expand -t 16
	@echo "CORPUS=folder adds the test that imports every real model file of a folder to make test."

deps-%:
	@scripts/install-deps.sh $*

build: deps-build deps-test ## Build the release preset into build/release
	cmake --preset release $(configure_flags)
	cmake --build --preset release --parallel $(JOBS)

run: build ## Import a shipped sample and show what came of it
	@mkdir -p $(dir $(imported))
	build/release/bin/kyr import $(sample) -o $(imported)
	@echo && echo "$(imported): $$(wc -c < $(imported)) bytes, which open with"
	@head -c 600 $(imported) && echo " ..."
	@echo && echo "kyr inspect $(sample)"
	@build/release/bin/kyr inspect $(sample) | sed -n '1,20p'
	@echo && build/release/bin/kyr import $(drawn) -o out/drawn.json -q
	build/release/bin/kyr diagram out/drawn.json -o out
	build/release/bin/kyr report out/drawn.json -o out

test: build ## Run all tests: release, then address, leak and undefined behaviour sanitizers
	ctest --preset release
	cmake --preset asan-ubsan $(configure_flags)
	cmake --build --preset asan-ubsan --parallel $(JOBS)
	ctest --preset asan-ubsan

soak: build deps-soak ## Run the long loops of broken files and faults, plain and under the sanitizers
	ctest --preset release -C soak -L soak
	cmake --preset asan-ubsan
	cmake --build --preset asan-ubsan --parallel $(JOBS)
	ctest --preset asan-ubsan -C soak -L soak

fuzz: deps-build deps-lint ## Run each fuzzer for SECONDS=60 from the seeds and what it learned before
	cmake --preset fuzz
	cmake --build --preset fuzz --parallel $(JOBS)
	python3 fuzz/run_fuzzers.py build/fuzz --seconds $(SECONDS)

coverage: deps-build deps-test deps-coverage ## Which lines and branches the tests reach: 95 and 85 percent or an error
	cmake --preset coverage $(configure_flags)
	cmake --build --preset coverage --parallel $(JOBS)
	find build/coverage -name '*.gcda' -delete
	ctest --preset coverage
	mkdir -p build/coverage/report
	gcovr -j $(JOBS) build/coverage

lint: deps-build deps-test deps-lint ## Check format, include direction, headers and clang-tidy
	scripts/lint.sh

format: deps-lint ## Rewrite all sources with clang-format
	scripts/list-sources.sh | xargs clang-format -i

bench: deps-bench build ## Print time and memory of imports of 1, 10 and 100 MB
	python3 bench/run_bench.py build/release

packages: deps-packages build ## Build the Debian packages into out/packages, and install and try them in a folder
	python3 tests/package/check_debian.py cpack build/release . out/packages

clean: ## Remove everything that was built
	rm -rf build out
