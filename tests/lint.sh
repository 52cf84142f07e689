#!/usr/bin/env bash
# House rules that a search can see. One line a rule, OK or FAIL; the exit status is the number of failures.
# docs/decisions/0015-gates.md says what else is checked, and where.
set -u
cd "$(dirname "$0")/.."
failures=0

# rule TEXT HITS: fails where HITS is not empty.
rule() {
  if [ -z "$2" ]; then
    echo "OK    $1"
  else
    echo "FAIL  $1"
    printf '%s\n' "$2" | head -12 | sed 's/^/        /'
    failures=$((failures + 1))
  fi
}

sources() { git ls-files --cached --others --exclude-standard -- "$@" | grep -E '\.(cpp|h)$'; }
cores=$(sources '*/core/*' 'platform/text/*' 'platform/store/*' 'platform/voice/*' 'platform/report/*' 'printing/contract/*' 'tools/*' | grep -v /tests/)
screens=$(sources '*/screens/*' | grep -v /tests/)
program=$(sources 'platform/*' 'frame/*' 'records/*' 'office/*' 'claims/*' 'printing/*' 'app/*' 'tools/*' | grep -vE '/test(s|ing)/')
code=$(printf '%s\n' $program | grep -v '^tools/')

# Lines of each file of the program, the shortest first.
sizes() { wc -l $program | grep -v ' total$' | sort -n; }
median() { sizes | awk '{ lines[NR] = $1 } END { print lines[int((NR + 1) / 2)] }'; }

# The first clang-format of the version that the tree is formatted with; empty where there is none.
formatter() {
  for name in clang-format-14 clang-format; do
    "$name" --version 2>/dev/null | grep -q 'version 14\.' && echo "$name" && return
  done
}
unformatted() {
  local name
  name=$(formatter)
  [ -n "$name" ] || { echo "clang-format 14 is not installed (package clang-format-14)"; return; }
  sources '*' | xargs -P "$(nproc)" -n 50 "$name" --dry-run -Werror 2>&1 | grep -E '(error|warning):'
}

# The packages that the set-up installs, and those that the page on third parties has a row for.
installed_packages() { sed -nE 's/^(test: *)?([a-z0-9][a-z0-9.+-]*)$/\2/p' scripts/packages.txt | sort -u; }
described_packages() { sed -nE 's/^\| `([a-z0-9][a-z0-9.+-]*)` \|.*/\1/p' docs/third-party.md | sort -u; }

rule "rules name no widget" \
  "$(grep -nE '#include <(QtWidgets|QtGui/QWindow|Q(Application|Widget|Dialog|MessageBox|LineEdit|Label|MainWindow|TableView)\b)' $cores)"
rule "folders include what tests/includes.txt allows them" "$(awk -f tests/includes.awk tests/includes.txt $program)"
rule "screens open each other by name, never by header" \
  "$(for f in $screens; do grep -HnE '#include "[a-z]+/screens/[a-z0-9_]+_screen\.h"' "$f" | while IFS=: read -r file line text; do
       case $file in *_screens.cpp) continue ;; esac
       included=$(printf '%s' "$text" | sed -E 's/.*"(.*)".*/\1/')
       stem=$(basename "$file" | sed -E 's/\.(cpp|h)$//')
       first=${stem%%_*}; case $(basename "$included") in $first*) ;; *_rows.h|*_support.h|*_parts.h) ;; *) echo "$file:$line:$text" ;; esac
     done; done)"
rule "only the screen kit makes input widgets" \
  "$(grep -nE 'new Q(LineEdit|PlainTextEdit|TextEdit|ComboBox|CheckBox|RadioButton|PushButton|ToolButton|SpinBox|DateEdit|TableView|ListView|TabWidget|MessageBox)\b|addRow\(' $(printf '%s\n' $code | grep -v '^platform/screen/'))"
rule "messages go through the one door" "$(grep -nE 'QMessageBox' $(printf '%s\n' $code | grep -v '^platform/screen/'))"
rule "statements of the engine stand in the store alone" \
  "$(grep -nE 'u?"[^"]*\b(SELECT|INSERT INTO|DELETE FROM|CREATE TABLE|ALTER TABLE)\b|u?"UPDATE [^"]*SET' $(printf '%s\n' $code | grep -v '^platform/store/') | grep -vE '//.*(SELECT|UPDATE|ALTER)')"
rule "today comes from the clock" "$(grep -nE 'QDate(Time)?::current' $(printf '%s\n' $code | grep -v '^platform/text/clock.h'))"
rule "names of files are ASCII" "$(git -c core.quotepath=off ls-files | LC_ALL=C grep -nP '[^\x00-\x7F]')"
rule "each header guards itself" "$(for f in $(sources '*' | grep '\.h$'); do grep -q '#pragma once' "$f" || echo "$f"; done)"
rule "no file above 400 lines; exceptions in tests/large_files.txt" \
  "$(for f in $code; do
       n=$(wc -l < "$f"); limit=400
       [ "$n" -gt "$limit" ] && ! grep -qx "$f" tests/large_files.txt && echo "$n $f"
     done)"
rule "the median of the program's files is under 80 lines" "$([ "$(median)" -lt 80 ] || median)"
rule "every file is formatted by clang-format 14" "$(unformatted)"
rule "docs/third-party.md has the packages that the set-up installs" \
  "$(diff <(installed_packages) <(described_packages) | sed -n 's/^< \(.*\)/not described: \1/p; s/^> \(.*\)/not installed: \1/p')"
rule "subjects of commits name their folder" "$(scripts/check-commits 2>&1)"
rule "nothing is left as a note to do" "$(git grep -nIE '\b(TODO|FIXME|XXX|HACK)\b' -- '*.cpp' '*.h' '*.md' '*.PRP' '*.txt' ':!tests/lint.sh')"

echo "lines of the program's files: median $(median), largest"
sizes | tail -10 | tac
exit "$failures"
