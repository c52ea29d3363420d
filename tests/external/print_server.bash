# A CUPS server of its own, reached by a socket alone, with the PDF printer of Debian behind its queues.
# To be sourced by bash; needs root, which the printer's driver asks for.

server=
server_pid=
settings=()

# start_server QUEUE...: the first queue is the usual one; what is printed lies in $server/printed
start_server() {
    server=$(mktemp -d /tmp/korven-cups-XXXXXX)
    chmod 755 "$server"
    mkdir "$server"/{root,spool,cache,state,log,tmp,printed}
    chmod 1777 "$server"/{tmp,printed}
    cat >"$server/files.conf" <<END
ServerRoot $server/root
RequestRoot $server/spool
CacheDir $server/cache
StateDir $server/state
TempDir $server/tmp
AccessLog $server/log/access
ErrorLog $server/log/error
PageLog $server/log/page
SystemGroup root lpadmin
END
    cat >"$server/cupsd.conf" <<END
Listen $server/socket
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
END
    /usr/sbin/cupsd -f -c "$server/cupsd.conf" -s "$server/files.conf" &
    server_pid=$!
    wait_for 10 test -S "$server/socket" || fail "the print server does not start"
    export CUPS_SERVER=$server/socket
    local queue
    for queue in "$@"; do
        settings+=("/etc/cups/cups-pdf-$queue.conf")
        printf 'Out %s/printed\nGrp lpadmin\n' "$server" >"${settings[-1]}"
        lpadmin -p "$queue" -E -v "cups-pdf:/$queue" -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd 2>/dev/null
    done
    lpadmin -d "$1"
}

kill_server() {
    [ -z "$server_pid" ] || { kill "$server_pid" && wait "$server_pid"; } || true
    server_pid=
}

stop_server() {
    kill_server
    rm -rf "$server" "${settings[@]}"
}

# wait_for SECONDS COMMAND...
wait_for() {
    local tries=$(($1 * 10))
    shift
    until "$@" >/dev/null; do
        [ $((tries--)) -gt 0 ] || return 1
        sleep 0.1
    done
}

# printed QUEUE: the queue is empty and a file of the printer is there
printed() { [ -z "$(lpstat -o "$1")" ] && compgen -G "$server/printed/*.pdf" >/dev/null; }
