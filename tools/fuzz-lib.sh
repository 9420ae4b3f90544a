# shellcheck shell=bash
# Sourced by tools/fuzz.sh and tools/fuzz-long.sh (from the checkout's root):
# the fuzz targets, their build, and where each keeps its corpus and findings.

# shellcheck disable=SC2034  # read by the scripts that source this
QVX_FUZZ_TARGETS=(fuzz_catalogue fuzz_keyed_list fuzz_registry_file fuzz_scenario_script
                  fuzz_variant_text fuzz_database_info)

# fuzz_build TARGET...: the targets of the preset "fuzz" (clang with the
# fuzzer, AddressSanitizer and UndefinedBehaviorSanitizer).
fuzz_build() {
  cmake --preset fuzz >/dev/null
  cmake --build --preset fuzz -j2 --target "$@"
}

# fuzz_prepare OUT TARGET: OUT/corpus/TARGET, seeded from fuzz/corpus/TARGET
# without overwriting what earlier runs found, and OUT/findings/TARGET.
fuzz_prepare() {
  mkdir -p "$1/corpus/$2" "$1/findings/$2"
  cp -n fuzz/corpus/"$2"/* "$1/corpus/$2"/ 2>/dev/null || true
}

