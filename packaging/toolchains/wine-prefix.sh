#!/bin/sh
# Creates the Wine prefix given as the argument, if missing, and waits until Wine is done
# with it. Wine creates a missing prefix on first use, and programs started side by side
# while it does so can fail; so the tests have it made first, alone.
set -eu
WINEPREFIX=$1
WINEDEBUG=-all
export WINEPREFIX WINEDEBUG
wine_dir=/usr/lib/wine
"$wine_dir/wine64" wineboot --init
"$wine_dir/wineserver" -w
