# Each target does all that it needs on a fresh machine; tools/setup.sh installs what is missing.
.PHONY: demo pictures test test-win64 differential bench seeds fuzz mutate format lint clean

demo:
	@tools/demo.sh

# Pictures of every page, from real windows: docs/pictures/dialogs
pictures:
	@tools/pictures.sh

test:
	@tools/test.sh native win32

test-win64:
	@tools/test.sh win64

# Random windows and users on both window systems, side by side: make differential BASE=7
BASE ?= 1
differential:
	@tools/differential.sh long $(BASE)

bench:
	@tools/bench.sh

# How often the seeds of the curve-fit library lead to the best fit; goes on where it was stopped. At most
# SEED_MINUTES, then the page is written from what there is.
SEED_MINUTES ?= 40
seeds:
	@tools/curvefit/seeds.sh $(SEED_MINUTES)

# Minutes per fuzz target: make fuzz FUZZ_SECONDS=600
fuzz:
	@tools/fuzz.sh $(FUZZ_SECONDS)

# Changes of the code that no test notices: make mutate FOLDERS="text contract"
mutate:
	@tools/mutate.sh $(FOLDERS)

format:
	@tools/lint.sh --format

lint:
	@tools/lint.sh

clean:
	rm -rf build
