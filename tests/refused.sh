#!/usr/bin/env bash
# Tables with one mistake each must not compile. Usage: tests/refused.sh COMPILER INCLUDES (with semicolons)
set -u
cd "$(dirname "$0")/.."
compiler=$1
includes=(-I.)
IFS=';' read -ra folders <<<"$2"
for folder in "${folders[@]}"; do includes+=(-isystem "$folder"); done
failures=0
for file in tests/refused/*.cpp; do
  wanted=$(sed -n '1s|^// ||p' "$file")
  if output=$("$compiler" -std=c++20 -fPIC -fsyntax-only "${includes[@]}" "$file" 2>&1); then
    [ "$wanted" = compiles ] && continue
    echo "FAIL  $file compiles"
  elif [ "$wanted" = compiles ]; then
    echo "FAIL  $file does not compile:"
    printf '%s\n' "$output" | grep error | head -3
  else
    grep -qE "$wanted" <<<"$output" && continue
    echo "FAIL  $file is refused for another reason:"
    printf '%s\n' "$output" | grep error | head -3
  fi
  failures=$((failures + 1))
done
exit "$failures"
