# Holds the includes of the program against the table tests/includes.txt: prints file:line of each include that
# the table does not allow, each folder that the table lacks, and each row that names a folder from below it.
# Usage: awk -f includes.awk includes.txt FILES
function folder(path, part) {
  split(path, part, "/")
  return part[1] == "app" || part[1] == "tools" ? part[1] : part[1] "/" part[2]
}

FILENAME == ARGV[1] {
  if (NF > 0 && $1 !~ /^#/) {
    known[$1] = 1
    for (i = 2; i <= NF; ++i) {
      allowed[$1, $i] = 1
      if (!($i in known) || $i == $1) print FILENAME ":" FNR ": " $i " is not a row above " $1
    }
  }
  next
}

FNR == 1 {
  from = folder(FILENAME)
  if (!(from in known)) print FILENAME ": " from " is not in tests/includes.txt"
}

/^#include "[^"]*\// {
  split($0, quoted, "\"")
  to = folder(quoted[2])
  if (quoted[2] ~ /\/(tests|testing)\//) print FILENAME ":" FNR ": includes a header of tests"
  else if (to != from && !((from, to) in allowed)) print FILENAME ":" FNR ": " from " may not include " to
}
