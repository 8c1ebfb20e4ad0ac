# Truhlář: make run (the workbench, or the headless demo without a display), make test.
BUILD_DIR ?= build
JOBS ?= $(shell nproc)
PACKAGES := cmake g++ make qt6-base-dev libsqlite3-dev libgtest-dev libgmock-dev libwmf-dev pkg-config \
            fonts-urw-base35 \
            fonts-liberation2 fonts-dejavu-core poppler-utils xvfb xauth

.PHONY: deps build run test bench clean

deps:
	@missing=$$(for p in $(PACKAGES); do dpkg-query -W -f='$${Status}\n' $$p 2>/dev/null | grep -q 'install ok installed' || echo $$p; done); \
	if [ -n "$$missing" ]; then \
	  if [ "$$(id -u)" = 0 ]; then \
	    echo "Instaluji: $$missing"; \
	    export DEBIAN_FRONTEND=noninteractive; \
	    apt-get update -qq && apt-get install -y -qq --no-install-recommends $$missing; \
	  else \
	    echo "Chybí balíčky: $$missing (spusťte jako root: apt-get install $$missing)"; exit 1; \
	  fi; \
	fi

$(BUILD_DIR)/CMakeCache.txt:
	cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: deps $(BUILD_DIR)/CMakeCache.txt
	cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ] && [ -x $(BUILD_DIR)/src/app/truhlar ]; then \
	  $(BUILD_DIR)/src/app/truhlar; \
	else \
	  BUILD_DIR=$(BUILD_DIR) tools/demo; \
	fi

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

bench: build
	$(BUILD_DIR)/bench/truhlar-bench $(BENCH_ARGS)

clean:
	rm -rf $(BUILD_DIR)
