# Thin wrapper: every target installs what is missing, configures and builds.
BUILD ?= build
JOBS ?= $(shell nproc)

.PHONY: setup build run test bench package clean

setup:
	@bash scripts/setup.sh

build: setup
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD) -j $(JOBS)

run: build
	$(BUILD)/bin/haulix

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

bench: build
	$(BUILD)/bin/haulix-bench
	$(BUILD)/bin/haulix-bench-register
	$(BUILD)/bin/haulix-bench-printouts
	$(BUILD)/bin/haulix-bench-carriers
	$(BUILD)/bin/haulix-bench-statements
	$(BUILD)/bin/haulix-bench-invoicing
	$(BUILD)/bin/haulix-bench-writes
	$(BUILD)/bin/haulix-bench-year-reports

# haulix_<version>_amd64.deb in the build directory, from the programs built there.
package: build
	cmake --build $(BUILD) --target package

clean:
	rm -rf $(BUILD)
