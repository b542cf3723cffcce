# Installs the Debian packages of packages.txt that are missing. Sourced by ./run and ./test.
install_packages() {
    local missing=() name
    mkdir -p build
    while read -r name; do
        case "$name" in "" | "#"*) continue ;; esac
        dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed || missing+=("$name")
    done <packages.txt
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "installing: ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -qq >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}
