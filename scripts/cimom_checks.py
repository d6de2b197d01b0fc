#!/usr/bin/env python3
"""The conformance checks of the provider inside a running object manager.

Every request goes to the object manager with wbemcli and, for the same
request, to the provider loaded by vexraid (which imitates the same object
manager); the two must agree: both fail, or both succeed with the same
object paths. A class the provider does not serve yet fails on both sides and
counts as agreement, so the checks grow by themselves as classes land. Some
checks are absolute (the provider's profile can be discovered, a method runs
for a member of the root group and is refused to another user).

usage: cimom_checks.py --cimom sfcb|pegasus --url http://127.0.0.1:5988
           --admin USER:PASSWORD --user USER:PASSWORD --vexraid PATH
           --state-dir DIR --log FILE
"""
import argparse
import json
import re
import subprocess
import sys
import time

TIMEOUT = 60          # seconds, every single client call
GET_LIMIT = 25        # GetInstance of at most this many paths per class
IMPL = "root/tkz/vex/smi_15"
PROFILE_ID = "SNIA+Host Hardware RAID Controller+1.5.0"
DMTF_SUPERCLASSES = [
    (IMPL, "CIM_ComputerSystem"), (IMPL, "CIM_LogicalDevice"), (IMPL, "CIM_StorageExtent"),
    (IMPL, "CIM_SoftwareIdentity"), (IMPL, "CIM_PhysicalPackage"), (IMPL, "CIM_StoragePool"),
]


class Run:
    def __init__(self, args):
        self.args = args
        self.interop = "root/interop" if args.cimom == "sfcb" else "root/PG_InterOp"
        self.base = args.url.rstrip("/")
        self.log = open(args.log, "a", encoding="utf-8")
        self.passed = 0
        self.failed = []
        self.notes = []

    # --- clients -----------------------------------------------------------
    def _call(self, argv):
        self.log.write("$ " + " ".join(argv) + "\n")
        try:
            done = subprocess.run(argv, capture_output=True, text=True, timeout=TIMEOUT)
        except subprocess.TimeoutExpired:
            self.log.write("  TIMEOUT\n")
            return None
        self.log.write(done.stdout[-4000:] + done.stderr[-2000:] + "  exit %d\n" % done.returncode)
        return done

    def url(self, path, cred=None):
        cred = cred or self.args.admin
        scheme, rest = self.base.split("://", 1)
        return "%s://%s@%s/%s" % (scheme, cred, rest, path)

    def wbem(self, op, path, options=(), cred=None, extra=()):
        """(code, lines): code 0 on success, the CIM status code on failure,
        -1 when the client timed out or its answer could not be read."""
        done = self._call(["wbemcli", op, *options, self.url(path, cred), *extra])
        if done is None:
            return -1, []
        if done.returncode == 0:
            return 0, [l for l in done.stdout.splitlines() if l.strip()]
        m = re.search(r"\((\d+)\) CIM_ERR", done.stderr + done.stdout)
        return (int(m.group(1)) if m else -1), []

    def vex(self, *argv, user="root"):
        done = self._call([self.args.vexraid, "--cimom", self.args.cimom, "--json",
                           "--state-dir", self.args.state_dir, "--time-scale", "0",
                           "--user", user, *argv])
        if done is None:
            return -1, []
        if done.returncode != 0:
            return done.returncode, []
        try:
            return 0, json.loads(done.stdout or "[]")
        except ValueError:
            return -1, []

    # --- outcome -------------------------------------------------------------
    def check(self, ok, what):
        if ok:
            self.passed += 1
        else:
            self.failed.append(what)
            print("FAIL: " + what, flush=True)

    def agree(self, what, cimom, vexraid, compare_paths=True):
        (c1, r1), (c2, r2) = cimom, vexraid
        if c1 != 0 or c2 != 0:
            ok = c1 != 0 and c2 != 0 and c1 != -1 and c2 != -1
            self.check(ok, "%s: object manager %s, vexraid %s" % (what, c1, c2))
            return False
        if compare_paths:
            a, b = sorted(canon(x) for x in r1), sorted(canon(x) for x in r2)
            self.check(a == b, "%s: %d paths from the object manager, %d from vexraid%s" % (
                what, len(a), len(b), "" if len(a) != len(b) else " (different)"))
        else:
            self.check(len(r1) == len(r2), "%s: %d objects from the object manager, %d from vexraid"
                       % (what, len(r1), len(r2)))
        return True


def first_token(line):
    """The text up to the first blank outside double quotes."""
    quoted = escaped = False
    for i, ch in enumerate(line):
        if escaped:
            escaped = False
        elif ch == "\\":
            escaped = True
        elif ch == '"':
            quoted = not quoted
        elif ch == " " and not quoted:
            return line[:i]
    return line


def canon(path):
    """An object path as both clients print it, reduced to what identifies it:
    no host, no quoting, any case, keys in any order. (wbemcli prints the
    references of OpenPegasus' answers as host/namespaceClass.keys.)"""
    if isinstance(path, dict):
        path = path.get("path", "")
    text = first_token(path).replace("\\", "").replace('"', "").lower()
    text = re.sub(r"//[^/]*/(?=root/)", "", text)
    text = re.sub(r"(^|=)[^=,/]*/(?=root/)", r"\1", text)
    text = re.sub(r"(?<=[a-z0-9])(?=(vex|cim|pg|sfcb)_)", ":", text)
    return tuple(sorted(t for t in re.split(r"[,=:.]", text) if t))


def classes(run):
    """(class, [namespaces], is_association) as vexraid lists them."""
    done = run._call([run.args.vexraid, "--json", "classes"])
    out = []
    for entry in json.loads(done.stdout):
        spaces = [run.interop if ns == "root/PG_InterOp" else ns for ns in entry["namespaces"]]
        out.append((entry["class"], spaces, "association" in entry["types"]))
    return out


def cimom_path(line):
    """The object path of a wbemcli answer line, without the host."""
    first = first_token(line)
    return first[first.find("root/"):]


def vex_path(path):
    """A vexraid object path (maybe with a //host/ prefix) as wbemcli takes it:
    references as keys are written unquoted, namespace:Class.keys, the form
    wbemcli itself prints and reads back."""
    path = re.sub(r"^//[^/]*/", "", path)
    head, dot, keys = path.partition(".")
    if not dot or '="//' not in keys:
        return path
    out, i = [], 0
    for m in re.finditer(r'([A-Za-z0-9_]+)=("(?:[^"\\]|\\.)*"|[^,]*)(,|$)', keys):
        name, value = m.group(1), m.group(2)
        if value.startswith('"//'):
            value = vex_path(re.sub(r'\\(.)', r"\1", value[1:-1]))
        out.append("%s=%s" % (name, value))
    return head + "." + ",".join(out)


def check_class(run, cls, ns):
    what = "%s:%s" % (ns, cls)
    names = run.wbem("ein", "%s:%s" % (ns, cls))
    ours = run.vex("ein", "%s:%s" % (ns, cls))
    if not run.agree("ein " + what, names, ours):
        return []
    run.agree("ei " + what, run.wbem("ei", "%s:%s" % (ns, cls)),
              run.vex("ei", "%s:%s" % (ns, cls)), compare_paths=False)
    # The paths as vexraid writes them (references quoted, which wbemcli reads
    # back whatever object manager printed them); they name the same objects.
    paths = [vex_path(p) for p in ours[1]]
    for path in paths[:GET_LIMIT]:
        code, lines = run.wbem("gi", path)
        run.check(code == 0 and len(lines) == 1 and canon(cimom_path(lines[0])) == canon(path),
                  "gi %s: %s" % (path, code))
    return paths


def check_association(run, assoc, ns, spaces, served):
    code, instances = run.vex("ei", "%s:%s" % (ns, assoc))
    if code != 0 or not instances:
        return
    refs = [(k, v) for k, v in instances[0].get("properties", {}).items()
            if isinstance(v, str) and ":" in v and "." in v and "root/" in v]
    for role, end in refs:
        source = vex_path(end)
        end_ns = source.split(":", 1)[0]
        if end_ns.lower() != ns.lower() and end_ns not in spaces:
            # The object manager routes a request by the namespace of its
            # source: an end in a namespace where the association is not
            # registered cannot start one.
            continue
        other = [r for r in refs if r[0] != role]
        label = "%s from %s" % (assoc, role)
        run.agree("ain " + label, run.wbem("ain", source, ["-ac", assoc]),
                  run.vex("ain", "-a", assoc, source))
        far = re.search(r":([A-Za-z0-9_]+)\.", other[0][1]).group(1) if other else None
        if far and end_ns in served.get(far.lower(), ()):
            # (OpenPegasus refuses a result class that its source namespace
            # lacks, before the provider is asked.)
            run.agree("ain -arc %s %s" % (far, label),
                      run.wbem("ain", source, ["-ac", assoc, "-arc", far]),
                      run.vex("ain", "-a", assoc, "-r", far, source))
        run.agree("ai " + label, run.wbem("ai", source, ["-ac", assoc]),
                  run.vex("ai", "-a", assoc, source), compare_paths=False)
        run.agree("rin " + label, run.wbem("rin", source, ["-arc", assoc]),
                  run.vex("rin", "-r", assoc, source))
        run.agree("ri " + label, run.wbem("ri", source, ["-arc", assoc]),
                  run.vex("ri", "-r", assoc, source), compare_paths=False)


def check_superclasses(run):
    for ns, cls in DMTF_SUPERCLASSES + [(run.interop, "CIM_RegisteredProfile")]:
        code, lines = run.wbem("ein", "%s:%s" % (ns, cls))
        ours = [l for l in lines if ":VEX_" in l]
        run.agree("ein %s:%s (provider classes)" % (ns, cls), (code, ours), run.vex("ein", "%s:%s" % (ns, cls)))


def check_discovery(run):
    code, lines = run.wbem("ein", run.interop + ":CIM_RegisteredProfile")
    profile = [cimom_path(l) for l in lines if PROFILE_ID in l and "VEX_RegisteredProfile" in l]
    run.check(code == 0 and len(profile) == 1,
              "the provider's profile is among the registered profiles of %s (%s)" % (run.interop, code))
    if not profile:
        return
    code, hosts = run.wbem("ain", profile[0], ["-ac", "VEX_HostComputerSystemConformsToProfile"])
    run.check(code == 0 and len(hosts) == 1 and "VEX_HostComputerSystem" in hosts[0],
              "the profile leads to the host system (%s)" % code)
    code, subs = run.wbem("ain", profile[0], ["-ac", "VEX_SubProfileRequiresProfile"])
    run.check(code == 0 and len(subs) >= 1, "the profile leads to its subprofiles (%s)" % code)
    # How a DSP1033 client asks: through the DMTF association class.
    # How a DSP1033 client asks: through the DMTF association class. Reported,
    # not checked: whether it works depends on the object manager (OpenPegasus
    # also asks its own interop provider, which refuses foreign profiles) and
    # on the association class filters of the provider.
    dsp = run.wbem("ain", profile[0], ["-ac", "CIM_ElementConformsToProfile", "-arc", "CIM_ComputerSystem"])
    ours = run.vex("ain", "-a", "CIM_ElementConformsToProfile", "-r", "CIM_ComputerSystem", profile[0])
    run.notes.append("DSP1033 ain -ac CIM_ElementConformsToProfile -arc CIM_ComputerSystem from the profile:"
                     " object manager %s (%d paths), vexraid %s (%d paths)"
                     % (dsp[0], len(dsp[1]), ours[0], len(ours[1])))


def check_methods(run, controllers):
    if not controllers:
        run.notes.append("no controller: method checks skipped")
        return
    # A method that changes nothing: the names of the controller routines.
    target = controllers[0]
    admin = run.args.admin.split(":", 1)[0]
    user = run.args.user.split(":", 1)[0]
    done = run._call(["wbemcli", "cm", run.url(target), "getRoutineList"])
    run.check(done is not None and done.returncode == 0 and "Routine_List" in done.stdout,
              "getRoutineList as %s (primary group 0) runs" % admin)
    done = run._call(["wbemcli", "cm", run.url(target, run.args.user), "getRoutineList"])
    text = "" if done is None else done.stdout + done.stderr
    run.check(done is not None and done.returncode != 0 and "(2) CIM_ERR_ACCESS_DENIED" in text and
              "%s : is not a member of Administrator/root" % user in text,
              "getRoutineList as %s is refused" % user)


def check_client_habits(run, hosts):
    """What wbemcli's habits meet (settled behaviour, see README.md): ain
    without an association class, mi without a PropertyList."""
    if not hosts:
        return
    host = hosts[0]
    run.agree("ain without -ac from the host system", run.wbem("ain", host), run.vex("ain", host))
    if run.args.cimom == "sfcb":
        # sfcb hands the missing association class on: the provider refuses.
        code, _ = run.wbem("ain", host)
        run.check(code == 4, "ain without -ac is refused with CIM_ERR_INVALID_PARAMETER (%s)" % code)
        # wbemcli mi sends no PropertyList, which sfcb hands on: refused.
        # (OpenPegasus hands the provider a list even then.)
        code, _ = run.wbem("mi", host, extra=["ElementName=x"])
        run.check(code == 4, "mi without a PropertyList is refused with CIM_ERR_INVALID_PARAMETER (%s)" % code)


def check_indications(run):
    # Hook for the indication subscription checks (filter, handler and
    # subscription in the interop namespace, a change on the simulator, the
    # indication at a listener): they come with the indication delivery work.
    run.notes.append("indication subscription: not checked yet (hook check_indications)")


def main():
    p = argparse.ArgumentParser()
    for name in ("--cimom", "--url", "--admin", "--user", "--vexraid", "--state-dir", "--log"):
        p.add_argument(name, required=True)
    run = Run(p.parse_args())
    started = time.time()
    controllers = []
    hosts = []
    listed = classes(run)
    served = {cls.lower(): spaces for cls, spaces, _ in listed}
    for cls, spaces, association in listed:
        for ns in spaces:
            paths = check_class(run, cls, ns)
            if cls == "VEX_ControllerComputerSystem" and ns == IMPL:
                controllers = paths
            if cls == "VEX_HostComputerSystem" and ns == IMPL:
                hosts = paths
            if association:
                check_association(run, cls, ns, spaces, served)
    check_superclasses(run)
    check_discovery(run)
    check_methods(run, controllers)
    check_client_habits(run, hosts)
    check_indications(run)
    for note in run.notes:
        print("note: " + note)
    print("%s: %d checks passed, %d failed in %.0f s" % (run.args.cimom, run.passed, len(run.failed),
                                                      time.time() - started))
    return 1 if run.failed else 0


if __name__ == "__main__":
    sys.exit(main())
