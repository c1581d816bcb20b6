# One word for each task; `make help` lists them.

JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
DESTDIR ?=
export CCACHE_NOHASHDIR = 1
export CCACHE_BASEDIR = $(CURDIR)

.PHONY: help run install uninstall package appimage test test-trixie test-appimage test-managers test-wayland wayland-next bench-wayland sanitize torture \
	bench bench-day gallery matrix lint lint-wayland build asan clean

help: ## list the tasks
	@grep -hE '^[a-z-]+:.*##' $(MAKEFILE_LIST) | sed -E 's/:.*## /\t/' | expand -t 14

run: ## install what is missing, build, start the program (without a display: play the main job and leave pictures)
	@scripts/run

install: ## build and install the program (PREFIX=/usr/local, DESTDIR=)
	@scripts/install-deps
	@DESTDIR=$(DESTDIR) PREFIX=$(PREFIX) scripts/install

uninstall: ## remove what `make install` installed
	@DESTDIR=$(DESTDIR) PREFIX=$(PREFIX) scripts/install --remove

package: ## build the Debian package (build/release/package)
	@scripts/install-deps --package
	@scripts/package

appimage: ## build the AppImage (build/release/appimage)
	@scripts/install-deps --appimage
	@scripts/appimage

test-appimage: ## build AppImages, try one in a bare Debian 13 and update one to the next
	@scripts/install-deps --test --appimage
	@tests/appimage/run

test-managers: ## run the panel under openbox, xfwm4, KWin, i3 and Mutter
	@scripts/install-deps --test --managers
	@$(MAKE) --no-print-directory build
	@scripts/test-managers

test-trixie: ## build and run the unit tests in a bare Debian 13, build the package there and try it in another
	@scripts/install-deps --test
	@scripts/in-root --keep build trixie scripts/build-and-test
	@tests/package/run trixie

test-wayland: ## build in a Debian 13, run the tests in headless sessions of sway, labwc, KWin and GNOME
	@scripts/install-deps --test
	@tests/wayland/run

wayland-next: ## the same in Debian 13 and in Debian testing, written into docs/desktops.md
	@scripts/install-deps --test
	@scripts/wayland-results trixie "Debian 13"
	@scripts/wayland-results forky "Debian testing"

bench-wayland: ## figures of the program in sessions of sway, KWin and GNOME, with a Paste Stack of 300
	@scripts/install-deps --test
	@bench/wayland

test: ## install what is missing, build, run every test
	@scripts/install-deps --test
	@scripts/test

sanitize: ## every unit and view test under address and undefined-behaviour checks
	@scripts/install-deps --test
	@cmake --preset asan >/dev/null
	@cmake --build --preset asan -j $(JOBS) --target unit_tests | scripts/progress "build asan"
	@scripts/unit-tests build/asan -E '^Torture'

torture: ## kill the history 500 times, fail its disk, cut its power; nothing may be lost and nothing may come back
	@scripts/install-deps --test
	@$(MAKE) --no-print-directory build
	@for kind in kill disk power; do build/release/tests/torture/history_torture $$kind 500 || exit 1; done

bench: ## build, run the benchmarks and the side-by-side runs, print figures and ratios
	@scripts/install-deps --test --bench
	@$(MAKE) --no-print-directory build
	@bench/run

bench-day: ## play a day of copies and pastes in some ten minutes, print memory, open files and threads by the hour
	@scripts/install-deps --test
	@$(MAKE) --no-print-directory build
	@scripts/headless-session /usr/bin/python3 bench/a_day.py 2>/dev/null

gallery: ## draw the panel in each of its states into docs/gallery
	@scripts/install-deps --unit
	@scripts/gallery

matrix: ## install large applications too, try them all, write what was seen into docs/
	@scripts/install-deps --matrix
	@$(MAKE) --no-print-directory build
	@scripts/matrix

lint: ## formatting, clang-tidy, qmllint, texts, links of the documents
	@scripts/install-deps --test
	@scripts/lint

lint-wayland: ## clang-tidy over the sources that only Debian 13 builds
	@scripts/install-deps --test
	@scripts/lint-wayland

build: ## build the programs (build/release/vellumry)
	@cmake --preset release >/dev/null
	@cmake --build --preset release -j $(JOBS)

asan: ## build with address and undefined-behaviour checks
	@cmake --preset asan >/dev/null
	@cmake --build --preset asan -j $(JOBS)

clean: ## remove what was built
	rm -rf build
