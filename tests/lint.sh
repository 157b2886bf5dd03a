#!/bin/bash
# SPDX-License-Identifier: MIT
# Rules of the sources that a machine can check. Each rule is one test; the last line tells the numbers.
set -uo pipefail
shopt -s lastpipe
export LC_ALL=C.UTF-8
cd "$(dirname "${BASH_SOURCE[0]}")/.."

passed=0 failed=0
# rule NAME: takes the places where it is broken on standard input.
rule() {
  local found
  found=$(cat)
  if [[ -z $found ]]; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    printf 'broken: %s\n%s\n' "$1" "$(head -n 40 <<<"$found" | sed 's/^/  /')"
  fi
}
sources() { git ls-files "$@" | grep -v -E '^(build|node_modules)/'; }
# look PATTERN FILE_PATTERN...: lines that match an extended regular expression.
look() {
  local pattern=$1
  shift
  sources "$@" | xargs -r -d '\n' grep -n -E -e "$pattern" -- /dev/null
}
cpp=('*.cpp' '*.h')

sources "${cpp[@]}" '*.js' '*.mjs' | while read -r file; do
  head -n 1 "$file" | grep -q 'SPDX-License-Identifier: MIT' || echo "$file"
done | rule "the first line names the licence"

look '\b(TODO|FIXME|XXX|HACK)\b' "${cpp[@]}" '*.js' '*.css' '*.txt' '*.cmake' '*.xml' | rule "nothing is left to be done later"

look $'\t|[[:blank:]]$' "${cpp[@]}" '*.js' '*.mjs' '*.css' '*.cmake' 'CMakeLists.txt' | rule "no tabs, no blanks at the end of a line"

look '\beval *\(|new Function|\.(innerHTML|outerHTML)|insertAdjacentHTML|document\.write|createContextualFragment|set(Timeout|Interval) *\( *["`'"'"']' \
  'wt/browser/*.js' | rule "the page's script makes no code and no markup out of text"

look '\bstd::sto(i|l|ul|ll|ull|f|d)\b|[^_[:alnum:]](atoi|atol|strcpy|strcat|sprintf|vsprintf|gets|tmpnam|mktemp|popen|system) *\(' \
  'app/*.cpp' 'views/*.cpp' 'widgets/*.cpp' 'session/*.cpp' 'edid/*.cpp' 'store/*.cpp' 'platform/*.cpp' 'wt/*.cpp' 'zel/*.cpp' |
  grep -v -E ':[[:blank:]]*//' | rule "no call that throws on, overruns at or executes what comes from outside"

look '^[[:blank:]]*using namespace (std|Wt|boost)\b' "${cpp[@]}" | grep -v '^tests/\|^wt/' | rule "names are written with where they come from"

# A constant called like a member of one of the API's classes hides or is hidden by it, in one implementation or another.
look '^(static |inline )*(const|constexpr) [A-Za-z_:<>, 0-9*&]*[ *&][a-z][A-Za-z0-9_]*(\[[^]]*\])*( =|;|\{| *$)' \
  'app/*' 'views/*' 'widgets/*' 'session/*' 'store/*' 'edid/*' 'platform/*' |
  grep -vE '[ *&]k[A-Z][A-Za-z0-9]*(\[[^]]*\])*( =|;|\{| *$)' | rule "constants of a namespace are named kName"

look 'GTEST_SKIP|DISABLED_|\.(skip|only|todo)\(|\b(skip|only|todo): *true' 'tests/*.cpp' 'tests/*.h' 'tests/*.mjs' |
  grep -v '^tests/lint' | rule "no test is switched off"

look '#include [<"](Wt/[A-Z][A-Za-z]*\.h|dom/|session/|http/|browser/|base/)' 'app/*' 'views/*' 'widgets/*' 'session/*' 'store/*' |
  rule "the system includes the public headers of the toolkit only, without .h"

look '"resolved"' 'tests/browser/package-lock.json' | rule "the lock file names no registry"

# ---- Folders include downwards only -------------------------------------------------------------------------

# What a folder may include from beside itself.
declare -A below=(
  [app]="views widgets session store zel/api wt platform"
  [views]="widgets session store zel/api wt platform" [widgets]="session store zel/api wt platform" [session]="store wt"
  [store]="edid zel/api wt platform" [edid]="platform" [platform]="" [wt]=""
  [zel]="" [bench]="*" [tests]="*"
)
sources '*.h' | awk -F/ '{ print $NF, $0 }' | sort >"${TMPDIR:-/tmp}/nevo-headers.$$"
look '^#include "' 'app/*' 'views/*' 'widgets/*' 'session/*' 'store/*' 'edid/*' 'platform/*' 'wt/*' 'zel/*' |
  sed -n 's/^\([^:]*\):[0-9]*:#include "\([^"]*\)".*/\1 \2/p' |
  while read -r file header; do
    folder=${file%%/*}
    ok=no known=no
    while read -r _ path; do
      [[ $path == *"/$header" || $path == "$header" ]] || continue
      known=yes
      [[ ${path%%/*} == "$folder" ]] && ok=yes
      for lower in ${below[$folder]}; do [[ $path == "$lower" || $path == "$lower"/* ]] && ok=yes; done
    done < <(grep "^${header##*/} " "${TMPDIR:-/tmp}/nevo-headers.$$")
    [[ $known == yes && $ok == no ]] && echo "$file includes $header"
  done | rule "a folder includes only what lies below it"
rm -f "${TMPDIR:-/tmp}/nevo-headers.$$"

look 'zelclient|zelwire|zelsim' {app,views,widgets,session,store,edid,platform,wt}'/CMakeLists.txt' |
  grep -v 'set(NEVO_STORE_CLIENT zelclient CACHE' | rule "the store client library is named by NEVO_STORE_CLIENT only"

# ---- Format --------------------------------------------------------------------------------------------------

sources "${cpp[@]}" | xargs -r -d '\n' -P2 -n40 clang-format --dry-run --ferror-limit=1 2>&1 |
    grep -oE '^[^ :]+\.(cpp|h):[0-9]+' | cut -d: -f1 | sort -u |
    rule "the sources are formatted (clang-format -i)"

# ---- Names ---------------------------------------------------------------------------------------------------

# The names that headers declare, by one source for each library that includes them all. It needs a configured build.
if [[ -f build/dev/compile_commands.json ]]; then
  find build/dev -name '*_headers.cpp' -not -path '*/CMakeFiles/*' |
    xargs -r -d '\n' -P2 -n1 clang-tidy -p build/dev --quiet --checks='-*,readability-identifier-naming' \
      --extra-arg=-Wno-unknown-warning-option 2>/dev/null |
    sed -n "s|^$PWD/||; /\(error\|warning\):/p" | sort -u | rule "names follow .clang-tidy"
fi

printf '%d passed, %d failed\n' "$passed" "$failed"
((failed == 0))
