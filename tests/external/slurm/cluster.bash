# A cluster of one node, of its own: keys, sockets, ports and state in one folder, nothing of the machine's
# own configuration is read or written. To be sourced by bash; needs root, as the node's daemon does.
#
#   start_cluster FOLDER    ends the script where it can't be started; SLURM_CONF then names it
#   end_cluster FOLDER

# The daemons' own pid files tell which processes are ours: nothing is ended by its name.
end_cluster() {
    local name pid
    for name in slurmd slurmctld munged; do
        [ -f "$1/$name.pid" ] || continue
        pid=$(cat "$1/$name.pid")
        kill "$pid" 2>/dev/null || continue
        for _ in $(seq 50); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
        kill -KILL "$pid" 2>/dev/null || true  # it has gone: what is wished
    done
}

free_ports() {
    /usr/bin/python3 -c '
import socket
taken = [socket.create_server(("127.0.0.1", 0)) for _ in range(2)]
print(*(one.getsockname()[1] for one in taken))'
}

start_cluster() {
    local folder=$1 host ports
    host=$(hostname -s)
    ports=($(free_ports))
    mkdir -p "$folder"/{state,spool}
    chmod 755 "$folder"
    dd if=/dev/urandom of="$folder/munge.key" bs=128 count=8 status=none
    chmod 600 "$folder/munge.key"
    cat >"$folder/slurm.conf" <<CONF
ClusterName=korven
SlurmctldHost=$host(127.0.0.1)
SlurmctldPort=${ports[0]}
SlurmdPort=${ports[1]}
SlurmUser=root
SlurmdUser=root
AuthType=auth/munge
AuthInfo=socket=$folder/munge.socket
CredType=cred/munge
StateSaveLocation=$folder/state
SlurmdSpoolDir=$folder/spool
SlurmctldPidFile=$folder/slurmctld.pid
SlurmdPidFile=$folder/slurmd.pid
SlurmctldLogFile=$folder/slurmctld.log
SlurmdLogFile=$folder/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
ReturnToService=2
NodeName=$host NodeAddr=127.0.0.1 CPUs=$(nproc) State=UNKNOWN
PartitionName=main Nodes=$host Default=YES MaxTime=INFINITE State=UP
CONF
    export SLURM_CONF=$folder/slurm.conf
    munged --force --socket="$folder/munge.socket" --key-file="$folder/munge.key" \
        --pid-file="$folder/munged.pid" --log-file="$folder/munged.log" \
        --seed-file="$folder/munge.seed" &&
        slurmctld -i && slurmd || return 1
    for _ in $(seq 100); do
        [ "$(sinfo -h -o %t 2>/dev/null)" = idle ] && return 0
        sleep 0.2
    done
    echo "The node did not come up:" >&2
    tail -n 20 "$folder"/*.log >&2
    return 1
}
