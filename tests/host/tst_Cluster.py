#!/usr/bin/env python3
"""Runs a study on a cluster of two nodes, both of them on the loopback of this machine.

A task and a node are killed on the way. The table has the bytes of a study that one program did.
"""
import getpass
import json
import os
import pathlib
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = os.environ["TARN_HOST_PROGRAM"]
SAMPLE = pathlib.Path(os.environ["TARN_SOURCE_DIR"], "host/samples/flange.json")
PATIENCE = 180  # s
NODES = ("n1", "n2")

CONFIGURATION = """
ClusterName=study
SlurmctldHost={host}(127.0.0.1)
SlurmctldPort={controllerPort}
SlurmUser={user}
SlurmdUser={user}
AuthType=auth/none
CredType=cred/none
StateSaveLocation={folder}/state
SlurmdSpoolDir={folder}/spool.%n
SlurmctldPidFile={folder}/slurmctld.pid
SlurmdPidFile={folder}/slurmd.%n.pid
SlurmctldLogFile={folder}/slurmctld.log
SlurmdLogFile={folder}/slurmd.%n.log
MpiDefault=none
SwitchType=switch/none
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
SchedulerType=sched/backfill
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
ReturnToService=2
SlurmctldTimeout=30
SlurmdTimeout=5
InactiveLimit=0
MinJobAge=300
KillWait=2
Waittime=0
JobRequeue=1
CommunicationParameters=NoCtldInAddrAny,NoInAddrAny
SchedulerParameters=sched_interval=1,sched_min_interval=0,bf_interval=1,batch_sched_delay=0
NodeName=n1 NodeHostname={host} NodeAddr=127.0.0.1 Port={port1} CPUs=1 RealMemory=100 State=UNKNOWN
NodeName=n2 NodeHostname={host} NodeAddr=127.0.0.1 Port={port2} CPUs=1 RealMemory=100 State=UNKNOWN
PartitionName=main Nodes=ALL Default=YES MaxTime=INFINITE State=UP
"""


def free_ports(count):
    """Ports of the loopback that no one uses now."""
    sockets = [socket.socket() for _ in range(count)]
    for one in sockets:
        one.bind(("127.0.0.1", 0))
    ports = [one.getsockname()[1] for one in sockets]
    for one in sockets:
        one.close()
    return ports


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.05)


def kill(*texts):
    """Kills the processes that have these texts in their environment. Returns how many."""
    count = 0
    for entry in pathlib.Path("/proc").iterdir():
        try:
            environment = (entry / "environ").read_bytes() if entry.name.isdigit() else b""
            if all(text.encode() in environment for text in texts):
                os.kill(int(entry.name), signal.SIGKILL)
                count += 1
        except OSError:
            continue  # It has ended.
    return count


def write_project(folder, thicknesses):
    """A study of the flange: ten runs for each thickness."""
    project = json.loads(SAMPLE.read_text(encoding="utf-8"))
    project["samples"] = [
        {"parameter": "bolt_count", "values": [4, 8], "ticked": True},
        {"parameter": "bore_diameter", "min": 60, "max": 80, "delta": 5, "ticked": True},
        {"parameter": "thickness", "values": list(thicknesses), "ticked": True}]
    path = folder / "flange.json"
    path.write_text(json.dumps(project), encoding="utf-8")
    return str(path)


def run_host(environment, *arguments):
    """Runs the program and returns its exit status, what it prints, and its errors."""
    answer = subprocess.run([PROGRAM, *arguments], env=environment, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    return answer.returncode, answer.stdout, answer.stderr


class Submission(unittest.TestCase):
    """What needs no cluster: a script plays the program that submits."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="submission"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.study = self.folder / "study"
        self.arguments = ["--study", write_project(self.folder, [20]), "--out", str(self.study),
                          "--submit", "slurm"]
        self.environment = dict(os.environ)

    def play_sbatch(self, text):
        sbatch = self.folder / "sbatch"
        sbatch.write_text("#!/bin/sh\n" + text, encoding="utf-8")
        sbatch.chmod(0o700)
        self.environment["PATH"] = f"{self.folder}:{os.environ['PATH']}"

    def scripts(self):
        return sorted(path.name for path in self.study.glob("*.sh"))

    def test_WithoutSlurmTheReasonIsReported(self):
        self.environment["PATH"] = str(self.folder)
        code, _, errors = run_host(self.environment, *self.arguments)
        self.assertEqual(code, 2)
        self.assertEqual(errors, "tarnhost: the program sbatch of Slurm was not found; submit where "
                                 "it is installed, or write the scripts alone with --no-run\n")
        self.assertFalse(self.study.exists())

    def test_TheScriptsAloneDoAllRuns(self):
        self.play_sbatch("echo called >&2; exit 1\n")
        code, told, errors = run_host(self.environment, *self.arguments, "--no-run", "--tasks", "4")
        self.assertEqual((code, errors), (0, ""))
        self.assertEqual(told, f"runs: 10, tasks: 4\nsubmit them with: sh {self.study}/slurm_submit.sh\n")
        self.assertEqual(self.scripts(), ["slurm_array.sh", "slurm_merge.sh", "slurm_submit.sh"])
        self.assertEqual(run_host(self.environment, "--status", str(self.study))[1],
                         "0 done, 0 failed, 0 running, 10 open\n")
        for task in (3, 1, 2, 4, 2):
            subprocess.run(["sh", self.study / "slurm_array.sh"], check=True,
                           stdout=subprocess.DEVNULL,
                           env=dict(self.environment, SLURM_ARRAY_TASK_ID=str(task)))
        merged = subprocess.run(["sh", self.study / "slurm_merge.sh"], check=True, text=True,
                                stdout=subprocess.PIPE, env=self.environment)
        self.assertEqual(merged.stdout, "10 done, 0 failed, 0 running, 0 open\n")
        alone = self.folder / "alone"
        run_host(self.environment, "--study", self.arguments[1], "--out", str(alone))
        for name in ("results.csv", "run_0010.step"):
            self.assertEqual((self.study / name).read_bytes(), (alone / name).read_bytes())

    def test_SmallStudiesAreOneTask(self):
        code, told, errors = run_host(self.environment, *self.arguments, "--no-run")
        self.assertEqual((code, errors), (0, ""))
        self.assertEqual(told.splitlines()[:2],
                         ["measuring the time of a run", "runs: 10, tasks: 1"])

    def test_ThereAreNoMoreTasksThanRuns(self):
        told = run_host(self.environment, *self.arguments, "--no-run", "--tasks", "500",
                        "--runs", "3-5")[1]
        self.assertEqual(told.splitlines()[0], "runs: 3, tasks: 3")

    def test_ARefusalOfTheQueueIsReported(self):
        self.play_sbatch("echo 'sbatch: error: invalid partition specified: fast' >&2; exit 1\n")
        code, _, errors = run_host(self.environment, *self.arguments, "--tasks", "1")
        self.assertEqual(code, 1)
        self.assertEqual(errors, "tarnhost: the study was not submitted: sbatch: error: invalid "
                                 "partition specified: fast\n")


class Cluster(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="cluster"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        controller_port, port1, port2 = free_ports(3)
        host = socket.gethostname().split(".")[0]
        configuration = self.folder / "slurm.conf"
        configuration.write_text(CONFIGURATION.format(
            folder=self.folder, user=getpass.getuser(), host=host, controllerPort=controller_port,
            port1=port1, port2=port2))
        (self.folder / "state").mkdir()
        self.environment = dict(os.environ, SLURM_CONF=str(configuration),
                                PATH=os.environ["PATH"] + ":/usr/sbin:/sbin")
        self.services = []
        self.addCleanup(self.stop_services)
        self.start("slurmctld", "-D", "-i", "-f", configuration)
        for node in NODES:
            (self.folder / f"spool.{node}").mkdir()
            self.start("slurmd", "-D", "-f", configuration, "-N", node)
        wait_for("the nodes", lambda: self.ask("sinfo", "-h", "-N", "-o", "%T").split()
                 == ["idle"] * len(NODES))

    def start(self, *command):
        self.services.append(subprocess.Popen(
            [str(word) for word in command], env=self.environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))

    def stop_services(self):
        # Also the tasks, and the children of the services that watch them.
        wait_for("the end of all processes", lambda: kill(f"SLURM_CONF={self.folder}") == 0)
        for service in self.services:
            service.wait()

    def ask(self, *command):
        answer = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                                check=False)
        return answer.stdout

    def run_host(self, *arguments):
        code, told, errors = run_host(self.environment, *arguments)
        self.assertEqual((code, errors), (0, ""))
        return told

    def ended_runs(self, folder):
        return int(self.run_host("--status", folder).split()[0])

    def is_over(self):
        """Whether no task is left. Failed tasks start again, without the queue's pause."""
        for task in self.tasks("failed"):
            self.ask("scontrol", "requeue", task[1])
        for task in self.tasks("pending"):
            self.ask("scontrol", "update", f"JobId={task[1]}", "StartTime=now")
        return not self.tasks("pending,running,completing,requeued,failed")

    def tasks(self, state):
        """The tasks in a state, each with its node."""
        lines = self.ask("squeue", "-h", "-r", "-t", state, "-o", "%A %F_%K %N").splitlines()
        return [line.split() for line in lines]

    def test_KilledTasksAndNodesChangeNothing(self):
        project = write_project(self.folder, range(16, 25))
        alone = str(self.folder / "alone")
        shared = str(self.folder / "shared")
        self.run_host("--study", project, "--out", alone, "--jobs", "2", "--step", "none")
        told = self.run_host("--study", project, "--out", shared, "--submit", "slurm", "--tasks",
                             "4", "--step", "none", "--memory", "50").splitlines()
        self.assertEqual(told[0], "runs: 90, tasks: 4")
        job, merge = re.fullmatch(r"submitted as job (\d+); job (\d+) writes results.csv behind it",
                                  told[1]).groups()

        # A task, in the middle of its runs.
        wait_for("some runs", lambda: self.ended_runs(shared) >= 10)
        kill(f"SLURM_CONF={self.folder}", "SLURM_ARRAY_TASK_ID")
        wait_for("their failure", lambda: len(self.tasks("failed")) > 0)

        # A node, with all that runs on it.
        wait_for("tasks on the second node",
                 lambda: self.is_over() or
                 any(task[2:] == ["n2"] for task in self.tasks("running")))
        self.services[-1].kill()
        kill(f"SLURM_CONF={self.folder}", "SLURMD_NODENAME=n2")
        self.ask("scontrol", "update", "NodeName=n2", "State=DOWN", "Reason=killed")
        wait_for("the rest", self.is_over)

        self.assertEqual(self.run_host("--status", shared), "90 done, 0 failed, 0 running, 0 open\n")
        self.assertEqual(pathlib.Path(shared, "results.csv").read_bytes(),
                         pathlib.Path(alone, "results.csv").read_bytes())


if __name__ == "__main__":
    sys.exit(unittest.main())
