#!/usr/bin/env bash
# Lists the free functions that the public headers declare at namespace scope
# (a line at the margin with a name before its parameters), and fails for any
# that consumer.cpp, the outside program, never calls: a function declared
# without being exported then goes unnoticed until a host links it.
# Operators are called through their symbols there and are not listed.
set -euo pipefail
source_dir=$1
include_dir=$2
missing=0
names=$(grep -rhE '^(VANTREL_EXPORT |inline )?[A-Za-z_:<>]+[ &*]+[A-Za-z_][A-Za-z0-9_]*\(' "$include_dir" \
        | grep -vE '^(class|struct|enum|template|typedef|using|namespace|return|#)' \
        | sed -E 's/^([^(]*[ &*])([A-Za-z_][A-Za-z0-9_]*)\(.*/\2/' | grep -v '^operator' | sort -u)
for name in $names; do
    if ! grep -q "\b$name(" "$source_dir/consumer.cpp"; then
        echo "free function $name is declared in a public header but not called by consumer.cpp"
        missing=1
    fi
done
[ -n "$names" ] || { echo "no free functions found: the pattern no longer matches the headers"; exit 1; }
exit $missing
