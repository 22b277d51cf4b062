#!/usr/bin/env bash
# Measures, and sets each measurement beside its baseline. Exit status 1 if a limit is missed.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern bauen desktop bench
cmake --preset bench >/dev/null
cmake --build build/bench --target tavorena_benchmarks tavorena_fensterbenchmarks
# The repetitions of all measurements are mixed: a disturbance then hits measurement and baseline alike.
build/bench/benchmarks/tavorena_benchmarks --benchmark_format=json --benchmark_min_time=0.1 \
  --benchmark_repetitions=9 --benchmark_enable_random_interleaving=true >build/bench/messung.json
build/bench/benchmarks/tavorena_fensterbenchmarks --benchmark_format=json --benchmark_min_time=0.1 \
  --benchmark_repetitions=9 --benchmark_enable_random_interleaving=true >build/bench/fenster.json 2>build/bench/fenster.log
python3 benchmarks/verhaeltnis.py build/bench/messung.json build/bench/fenster.json
