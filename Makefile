# Truhlář: make run (the workbench, or the headless demo without a display), make test.
BUILD_DIR ?= build
JOBS ?= $(shell nproc)
PACKAGES := cmake g++ make qt6-base-dev libsqlite3-dev libgtest-dev libgmock-dev libwmf-dev pkg-config \
            fonts-urw-base35 \
            fonts-liberation2 fonts-dejavu-core poppler-utils xvfb xauth

.PHONY: deps build run test bench fuzz clean install package package-check

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

# The installed layout: PREFIX/bin, PREFIX/share (DESTDIR=... lays it out under a staging folder).
PREFIX ?= /usr/local
install: build
	DESTDIR=$(DESTDIR) cmake --install $(BUILD_DIR) --prefix $(PREFIX) --strip

# The Debian package (programs in /usr/bin), and the check that it installs and runs on a clean
# Debian 12 (debootstrap, as root; not part of make test).
package: build
	cd $(BUILD_DIR) && cpack -G DEB
package-check: package
	tools/zkouska-balicku $(BUILD_DIR)/truhlar_*.deb

bench: build
	$(BUILD_DIR)/bench/truhlar-bench $(BENCH_ARGS)

# Every fuzz target for FUZZ_SECONDS (600) each: libFuzzer under clang where it is installed,
# else the seeded mutation test with many rounds. Inputs that fail land in tests/fuzz/regrese/.
FUZZ_DIR ?= build-fuzz
FUZZ_SECONDS ?= 600
FUZZ_TARGETS := zakazka-json import odrezky-json cenik moznosti jazyk zaloha
fuzz: deps
	@if command -v clang++ >/dev/null 2>&1; then \
	  cmake -S . -B $(FUZZ_DIR) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_C_COMPILER=clang \
	        -DCMAKE_CXX_COMPILER=clang++ -DTRUHLAR_FUZZ=ON >/dev/null && \
	  cmake --build $(FUZZ_DIR) -j $(JOBS) --target truhlar-fuzz && \
	  for c in $(FUZZ_TARGETS); do \
	    mkdir -p $(FUZZ_DIR)/korpus/$$c tests/fuzz/regrese/$$c; \
	    echo "== $$c"; \
	    TRUHLAR_FUZZ_CIL=$$c QT_QPA_PLATFORM=offscreen $(FUZZ_DIR)/tests/fuzz/truhlar-fuzz \
	      -max_total_time=$(FUZZ_SECONDS) -print_final_stats=1 -artifact_prefix=tests/fuzz/regrese/$$c/ \
	      $(FUZZ_DIR)/korpus/$$c tests/fuzz/regrese/$$c || exit 1; \
	  done; \
	else \
	  $(MAKE) build && for c in $(FUZZ_TARGETS); do \
	    TRUHLAR_FUZZ_KOLA=$$(( $(FUZZ_SECONDS) * 200 )) $(BUILD_DIR)/tests/fuzz/test_fuzz \
	      --gtest_filter="*/$$(echo $$c | tr - _)" || exit 1; \
	  done; \
	fi

clean:
	rm -rf $(BUILD_DIR)
