#!/usr/bin/env bash
# House rules that a search can see. One line a rule, OK or FAIL; the exit status is the number of failures.
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
code=$(sources 'platform/*' 'frame/*' 'records/*' 'office/*' 'claims/*' 'printing/*' 'app/*' | grep -v /tests/ | grep -v /testing/)

rule "rules name no widget" \
  "$(grep -nE '#include <(QtWidgets|QtGui/QWindow|Q(Application|Widget|Dialog|MessageBox|LineEdit|Label|MainWindow|TableView)\b)' $cores)"
rule "rules name no screens folder" "$(grep -nE '#include "[a-z]+/screens/' $cores)"
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
rule "the print contract knows no claim" "$(grep -nE '#include "(claims|records|frame)/' $(sources 'printing/contract/*'))"
rule "today comes from the clock" "$(grep -nE 'QDate(Time)?::current' $(printf '%s\n' $code | grep -v '^platform/text/clock.h'))"
rule "names of files are ASCII" "$(git -c core.quotepath=off ls-files | LC_ALL=C grep -nP '[^\x00-\x7F]')"
rule "each header guards itself" "$(for f in $(sources '*' | grep '\.h$'); do grep -q '#pragma once' "$f" || echo "$f"; done)"
rule "no file above its size (cpp 400, h 300); exceptions in tests/large_files.txt" \
  "$(for f in $code; do
       n=$(wc -l < "$f"); limit=400; case $f in *.h) limit=300 ;; esac
       [ "$n" -gt "$limit" ] && ! grep -qx "$f" tests/large_files.txt && echo "$n $f"
     done)"
rule "nothing is left as a note to do" "$(git grep -nIE '\b(TODO|FIXME|XXX|HACK)\b' -- '*.cpp' '*.h' '*.md' '*.PRP' '*.txt' ':!tests/lint.sh')"

echo "largest:"
for f in $code; do echo "$(wc -l < "$f") $f"; done | sort -rn | head -10 | sed 's/^/  /'
exit "$failures"
