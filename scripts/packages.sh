# Installs Debian packages that are missing. Sourced by the scripts beside it.

BUILD_PACKAGES=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-tools-dev libqt6opengl6-dev libsdl2-dev
  libsndfile1-dev libmpg123-dev libsoxr-dev)
DEMO_PACKAGES=(sox libsox-fmt-mp3 espeak-ng)
DISPLAY_PACKAGES=(xvfb fonts-dejavu-core)
TEST_PACKAGES=(libgtest-dev libgmock-dev libbenchmark-dev pulseaudio pulseaudio-utils lame
  "${DISPLAY_PACKAGES[@]}" "${DEMO_PACKAGES[@]}")
CHECK_PACKAGES=(clang-format clang-tidy)

need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing Debian packages: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    echo "(this needs administrator rights)"
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
    >/dev/null
}

# Builds one preset, the targets named or all of them; words with -D are options of the configuration. Prints only what
# went wrong.
build() {
  local preset=$1 options=() targets=() word log
  shift
  for word in "$@"; do
    case $word in -D*) options+=("$word") ;; *) targets+=(--target "$word") ;; esac
  done
  mkdir -p build
  log=build/$preset.log
  echo "Building ($preset)..."
  cmake --preset "$preset" "${options[@]}" >"$log" 2>&1 && cmake --build --preset "$preset" "${targets[@]}" >>"$log" 2>&1 ||
    { tail -n 60 "$log"; echo "The build failed; the whole log is $log."; return 1; }
}
