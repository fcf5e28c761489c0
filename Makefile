# SPDX-License-Identifier: GPL-3.0-or-later
# The two commands to begin with: `make run` and `make test`. Configurations are the presets of
# CMakePresets.json; this file only calls them and the scripts.
CONFIGURE := cmake --log-level=WARNING --preset
BUILD := cmake --build --preset

.PHONY: build run test bench fuzz sanitize coverage faults format format-check lint clean

build: ## the program at build/bin/sysdef
	@scripts/install-deps.sh
	@$(CONFIGURE) release
	@$(BUILD) release --target sysdef

run: build ## the sample project in the window, or off-screen where there is no display
	@scripts/run.sh

test: ## everything built, every test run
	@scripts/install-deps.sh
	@$(CONFIGURE) release
	@$(BUILD) release
	@ctest --preset release

bench: ## the benchmarks, beside other libraries on the same data
	@scripts/install-deps.sh bench
	@$(CONFIGURE) bench
	@$(BUILD) bench
	@scripts/bench.sh build-bench/bin

fuzz: ## every fuzz target for FUZZ_SECONDS (60)
	@scripts/install-deps.sh fuzz
	@$(CONFIGURE) fuzz
	@$(BUILD) fuzz
	@scripts/fuzz.sh build-fuzz/bin

sanitize: ## the tests with address and undefined-behaviour sanitizers
	@scripts/install-deps.sh
	@$(CONFIGURE) sanitize
	@$(BUILD) sanitize
	@ctest --preset sanitize

coverage: ## which lines the tests reach, as a table and build-coverage/coverage.html
	@scripts/install-deps.sh coverage
	@$(CONFIGURE) coverage
	@$(BUILD) coverage
	@ctest --preset coverage
	@scripts/coverage.sh build-coverage

faults: ## the fault tests at full length: kills, full disks, cut files
	@scripts/install-deps.sh
	@$(CONFIGURE) release
	@$(BUILD) release
	@ctest --preset faults

format: ## formats the sources in place
	@scripts/install-deps.sh lint
	@scripts/format.sh

format-check: ## says which sources are not formatted
	@scripts/install-deps.sh lint
	@scripts/format.sh --check

lint: ## clang-tidy over the sources
	@scripts/install-deps.sh lint
	@$(CONFIGURE) release
	@$(BUILD) release
	@scripts/lint.sh build

clean:
	rm -rf build build-*
