# Shell pieces shared by the scripts: the Debian packages the project needs, installing the
# missing ones, and a private MariaDB server in a directory of the caller's. Source it; it sets
# nothing up by itself.

# Everything the build, the tests and the demo use, from Debian 12.
TALMO_PACKAGES=(cmake g++ clang-14 pkg-config libmariadb-dev mariadb-server mariadb-client
  libgtest-dev python3 clang-format libxml2-dev)

say() { printf '\n== %s\n' "$*"; }

as_root() {
  if [[ $(id -u) -eq 0 ]]; then
    "$@"
  else
    sudo "$@"
  fi
}

# Installs the named packages (default: TALMO_PACKAGES) that are not installed yet, with apt-get,
# without asking anything.
install_missing_packages() {
  local missing=() package
  (($# > 0)) || set -- "${TALMO_PACKAGES[@]}"
  for package in "$@"; do
    if ! dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed$'; then
      missing+=("$package")
    fi
  done
  ((${#missing[@]} > 0)) || return 0
  say "Installing ${missing[*]}"
  as_root apt-get update </dev/null
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y "${missing[@]}" </dev/null
}

# A TCP port on 127.0.0.1 that nobody listens on right now.
free_port() {
  python3 - <<'PY'
import socket
with socket.socket() as s:
    s.bind(("127.0.0.1", 0))
    print(s.getsockname()[1])
PY
}

MARIADB_PID=""
MARIADB_SOCKET=""
MARIADB_PORT=""
MARIADB_SOCKET_DIR=""

# The mariadb client as root on the private server; arguments go to the client.
mariadb_root() {
  mariadb --no-defaults --socket="$MARIADB_SOCKET" --user=root "$@"
}

# Starts a fresh private MariaDB server with its data in DIR (made anew), listening on a free
# port of 127.0.0.1 and on a socket; sets MARIADB_PID, MARIADB_PORT and MARIADB_SOCKET. Callers
# stop it with stop_private_mariadb (an EXIT trap is the safe place).
start_private_mariadb() {
  local dir=$1
  rm -rf "$dir"
  mkdir -p "$dir"
  MARIADB_SOCKET="$dir/sock"
  if ((${#MARIADB_SOCKET} > 100)); then  # a Unix socket path must stay short
    MARIADB_SOCKET_DIR="$(mktemp -d /tmp/talmo-sock.XXXXXX)"
    MARIADB_SOCKET="$MARIADB_SOCKET_DIR/sock"
  fi
  mariadb-install-db --no-defaults --datadir="$dir/data" --user=root \
    --auth-root-authentication-method=socket --skip-test-db >"$dir/install.log" 2>&1 || {
    cat "$dir/install.log" >&2
    echo "mariadb-install-db failed" >&2
    return 1
  }
  MARIADB_PORT="$(free_port)"
  mariadbd --no-defaults --user=root --datadir="$dir/data" --socket="$MARIADB_SOCKET" \
    --port="$MARIADB_PORT" --bind-address=127.0.0.1 --pid-file="$dir/mariadbd.pid" \
    --log-error="$dir/error.log" --skip-name-resolve >/dev/null 2>&1 &
  MARIADB_PID=$!
  local attempt
  for attempt in $(seq 1 120); do
    if [[ -S "$MARIADB_SOCKET" ]] && mariadb_root -e "SELECT 1;" >/dev/null 2>&1; then
      return 0
    fi
    kill -0 "$MARIADB_PID" 2>/dev/null || break
    sleep 0.5
  done
  tail -n 20 "$dir/error.log" >&2 || true
  echo "the MariaDB server did not start" >&2
  return 1
}

stop_private_mariadb() {
  if [[ -n "$MARIADB_PID" ]] && kill -0 "$MARIADB_PID" 2>/dev/null; then
    kill "$MARIADB_PID" 2>/dev/null || true
    local attempt
    for attempt in $(seq 1 60); do
      kill -0 "$MARIADB_PID" 2>/dev/null || break
      sleep 0.5
    done
    kill -0 "$MARIADB_PID" 2>/dev/null && kill -KILL "$MARIADB_PID" 2>/dev/null
    wait "$MARIADB_PID" 2>/dev/null || true
  fi
  MARIADB_PID=""
  if [[ -n "$MARIADB_SOCKET_DIR" ]]; then
    rm -rf "$MARIADB_SOCKET_DIR"
    MARIADB_SOCKET_DIR=""
  fi
}

# Creates database DB with the shop's character set and the tool's user USER / PASSWORD, who may
# only read it (from 127.0.0.1 and from the socket), then loads the schema from ROOT/db.
create_shop_database() {
  local db=$1 user=$2 password=$3 root=$4
  mariadb_root <<SQL
CREATE DATABASE $db CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci;
CREATE USER '$user'@'%' IDENTIFIED BY '$password';
CREATE USER '$user'@'localhost' IDENTIFIED BY '$password';
GRANT SELECT ON $db.* TO '$user'@'%';
GRANT SELECT ON $db.* TO '$user'@'localhost';
FLUSH PRIVILEGES;
SQL
  mariadb_root "$db" <"$root/db/schema.sql"
}
