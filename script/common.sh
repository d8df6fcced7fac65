# shellcheck shell=sh
# Shared by the task scripts: where the project is, and how many jobs the machine takes.
root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
cd "$root" || exit 1
jobs=${ROOK_JOBS:-$(nproc)}
# The builds share their objects: paths count relative to the project, not absolutely.
export CCACHE_DIR="${CCACHE_DIR:-$root/build/ccache}" CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1

say() { printf '== %s\n' "$*"; }

# build PRESET [TARGET...]: configures when needed, then builds.
build() {
  preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"/dev/null"
  cmake --build --preset "$preset" --parallel "$jobs" ${1:+--target "$@"}
}
