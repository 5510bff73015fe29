#!/bin/sh
# Creates the Wine prefix given as the first argument, if missing, with the Wine in the
# directory given as the second, and waits until Wine is done with it. Wine creates a
# missing prefix on first use, and programs started side by side while it does so can
# fail; so the tests have it made first, alone.
set -eu
WINEPREFIX=$1
wine_dir=$2
WINEDEBUG=-all
export WINEPREFIX WINEDEBUG
"$wine_dir/wine64" wineboot --init
"$wine_dir/wineserver" -w
