#!/usr/bin/env python3
"""The provider against the object manager's own repository, through sfcb.

sfcb runs with the provider and a scratch namespace that declares twins of
four provider classes (same properties, another name). The repository is
filled with the provider's own instances by CreateInstance; the two answers
are checked to be the same instances but for the class name; then the same
operations are timed on both, as raw CIM-XML over HTTP, warm, several rounds.

usage: bench_cimom.py twins PROVIDER.mof OUT.mof   the twin classes' MOF
       bench_cimom.py run --url http://127.0.0.1:5988 --label NAME [--rounds N]
"""
import argparse
import http.client
import re
import statistics
import sys
import time
import urllib.parse
import xml.etree.ElementTree as ET

IMPL = "root/tkz/vex/smi_15"
SCRATCH = "root/vexbench"
TWIN_PREFIX = "VEXBench_"
DRIVE, VOLUME = "VEX_DiskDrive", "VEX_StorageVolume"
CONTROLLER, SYSTEM_DEVICE = "VEX_ControllerComputerSystem", "VEX_DiskDriveSystemDevice"
TWINNED = (DRIVE, VOLUME, CONTROLLER, SYSTEM_DEVICE)


def twin(cls):
    return TWIN_PREFIX + cls[len("VEX_"):]


def write_twins(source, out):
    """The twin classes: each class's declaration (qualifiers to "};") copied
    with the twinned class names replaced."""
    text = open(source, encoding="utf-8").read()
    blocks = []
    for cls in TWINNED:
        m = re.search(r"^\[[^\n]*\]\s*\nclass %s :.*?^\};\n" % cls, text, re.M | re.S)
        if not m:
            raise SystemExit("bench-cimom: no class %s in %s" % (cls, source))
        block = m.group(0)
        for c in TWINNED:
            block = re.sub(r"\b%s\b" % c, twin(c), block)
        blocks.append(block)
    with open(out, "w", encoding="utf-8") as f:
        f.write("// Twins of provider classes, kept in the repository.\n\n" + "\n".join(blocks))


# --- CIM-XML ------------------------------------------------------------------
def esc(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace('"', "&quot;")


def namespace_xml(ns):
    return "<LOCALNAMESPACEPATH>%s</LOCALNAMESPACEPATH>" % "".join(
        '<NAMESPACE NAME="%s"/>' % esc(p) for p in ns.split("/"))


def param(name, body):
    return '<IPARAMVALUE NAME="%s">%s</IPARAMVALUE>' % (name, body)


def classname(cls):
    return '<CLASSNAME NAME="%s"/>' % esc(cls)


class Client:
    def __init__(self, url):
        parts = urllib.parse.urlsplit(url)
        self.host, self.port = parts.hostname, parts.port or 5988
        self.ids = 0

    def call(self, ns, method, params):
        """The raw answer of one intrinsic method call; raises on a CIM error."""
        self.ids += 1
        body = ('<?xml version="1.0" encoding="utf-8"?><CIM CIMVERSION="2.0" DTDVERSION="2.0">'
                '<MESSAGE ID="%d" PROTOCOLVERSION="1.0"><SIMPLEREQ><IMETHODCALL NAME="%s">%s%s'
                '</IMETHODCALL></SIMPLEREQ></MESSAGE></CIM>' % (self.ids, method, namespace_xml(ns), params))
        conn = http.client.HTTPConnection(self.host, self.port, timeout=300)
        try:
            conn.request("POST", "/cimom", body.encode("utf-8"), {
                "Content-Type": 'application/xml; charset="utf-8"', "CIMOperation": "MethodCall",
                "CIMMethod": method, "CIMObject": urllib.parse.quote(ns, safe="")})
            answer = conn.getresponse()
            data = answer.read()
        finally:
            conn.close()
        if answer.status != 200 or b"<ERROR" in data[:4096] or answer.getheader("CIMError"):
            raise RuntimeError("%s %s: HTTP %d %s %s" % (method, ns, answer.status,
                                                          answer.getheader("CIMError"), data[:300]))
        return data

    def enumerate(self, ns, cls):
        return self.call(ns, "EnumerateInstances", param("ClassName", classname(cls)) +
                         param("LocalOnly", "<VALUE>FALSE</VALUE>"))

    def names(self, ns, cls):
        return self.call(ns, "EnumerateInstanceNames", param("ClassName", classname(cls)))

    def get(self, ns, name_xml):
        return self.call(ns, "GetInstance", param("InstanceName", name_xml) +
                         param("LocalOnly", "<VALUE>FALSE</VALUE>"))

    def associators(self, ns, name_xml, assoc):
        return self.call(ns, "Associators", param("ObjectName", name_xml) +
                         param("AssocClass", classname(assoc)))

    def create(self, ns, instance_xml):
        return self.call(ns, "CreateInstance", param("NewInstance", instance_xml))


# --- answers ------------------------------------------------------------------
def instances(data):
    return ET.fromstring(data).iter("INSTANCE")


def instance_names(data):
    return list(ET.fromstring(data).iter("INSTANCENAME"))


def renamed_name(name, cls):
    """An INSTANCENAME as text, with another class name (keys kept)."""
    copy = ET.fromstring(ET.tostring(name))
    copy.set("CLASSNAME", cls)
    return ET.tostring(copy, encoding="unicode")


def values(inst):
    """{property: value} of the properties with a value; references by their keys."""
    out = {}
    for prop in inst:
        name = prop.get("NAME")
        if prop.tag == "PROPERTY.REFERENCE":
            bindings = keys(prop)
            if bindings:
                out[name.lower()] = bindings
        elif prop.tag == "PROPERTY.ARRAY":
            arr = prop.find("VALUE.ARRAY")
            if arr is not None:
                out[name.lower()] = tuple(v.text or "" for v in arr.findall("VALUE"))
        elif prop.tag == "PROPERTY":
            v = prop.find("VALUE")
            if v is not None:
                out[name.lower()] = v.text or ""
    return out


def keys(name):
    return tuple(sorted((k.get("NAME").lower(), k.findtext("KEYVALUE") or "") for k in name.iter("KEYBINDING")))


def canonical(data):
    """The instances of an answer, each with the keys of its path (when the
    answer carries paths) and its property values, in a stable order."""
    out = []
    for named in ET.fromstring(data).iter():
        if named.tag in ("VALUE.NAMEDINSTANCE", "VALUE.OBJECTWITHPATH"):
            name, inst = next(named.iter("INSTANCENAME"), None), named.find("INSTANCE")
            if inst is not None:
                out.append((keys(name) if name is not None else (), sorted(values(inst).items())))
    return sorted(out)


def twin_instance(inst, cls, refs):
    """The provider instance as a NewInstance of the twin class: NULL
    properties left out, references pointing at the twins (refs: class map)."""
    copy = ET.Element("INSTANCE", {"CLASSNAME": cls})
    for prop in inst:
        if prop.tag == "PROPERTY" and prop.find("VALUE") is None:
            continue
        if prop.tag == "PROPERTY.ARRAY" and prop.find("VALUE.ARRAY") is None:
            continue
        p = ET.fromstring(ET.tostring(prop))
        for attr in ("CLASSORIGIN", "PROPAGATED"):
            p.attrib.pop(attr, None)
        if p.tag == "PROPERTY.REFERENCE":
            p.set("REFERENCECLASS", refs.get(p.get("REFERENCECLASS"), p.get("REFERENCECLASS", "")))
            name = next(p.iter("INSTANCENAME"), None)
            if name is None:
                continue
            name.set("CLASSNAME", refs.get(name.get("CLASSNAME"), name.get("CLASSNAME")))
            p.find("VALUE.REFERENCE").clear()
            p.find("VALUE.REFERENCE").append(name)
        copy.append(p)
    return ET.tostring(copy, encoding="unicode")


# --- the run ------------------------------------------------------------------
def fill(client):
    refs = {c: twin(c) for c in TWINNED}
    counts = {}
    for cls in TWINNED:
        n = 0
        for inst in instances(client.enumerate(IMPL, cls)):
            client.create(SCRATCH, twin_instance(inst, twin(cls), refs))
            n += 1
        counts[cls] = n
    return counts


def check(client):
    for cls in (DRIVE, VOLUME, CONTROLLER):
        a, b = canonical(client.enumerate(IMPL, cls)), canonical(client.enumerate(SCRATCH, twin(cls)))
        if a != b:
            raise SystemExit("bench-cimom: %s and its twin differ: %d vs %d instances" % (cls, len(a), len(b)))
    ctrl = instance_names(client.names(IMPL, CONTROLLER))[0]
    a = canonical(client.associators(IMPL, ET.tostring(ctrl, encoding="unicode"), SYSTEM_DEVICE))
    b = canonical(client.associators(SCRATCH, renamed_name(ctrl, twin(CONTROLLER)), twin(SYSTEM_DEVICE)))
    if a != b:
        raise SystemExit("bench-cimom: associators of %s differ: %d vs %d" % (CONTROLLER, len(a), len(b)))


def timed(fn):
    start = time.perf_counter()
    fn()
    return (time.perf_counter() - start) * 1000.0


def operations(client, ns, cls_of):
    names = [ET.tostring(n, encoding="unicode") for n in instance_names(client.names(ns, cls_of(DRIVE)))]
    ctrl = ET.tostring(instance_names(client.names(ns, cls_of(CONTROLLER)))[0], encoding="unicode")

    def get_all():
        for n in names:
            client.get(ns, n)
    return [
        ("EnumerateInstances " + DRIVE, lambda: client.enumerate(ns, cls_of(DRIVE))),
        ("EnumerateInstances " + VOLUME, lambda: client.enumerate(ns, cls_of(VOLUME))),
        ("EnumerateInstanceNames " + DRIVE, lambda: client.names(ns, cls_of(DRIVE))),
        ("GetInstance x%d %s" % (len(names), DRIVE), get_all),
        ("Associators " + SYSTEM_DEVICE, lambda: client.associators(ns, ctrl, cls_of(SYSTEM_DEVICE))),
    ]


def measure(client, rounds):
    provider = operations(client, IMPL, lambda c: c)
    repository = operations(client, SCRATCH, twin)
    rows = []
    for (label, p), (_, r) in zip(provider, repository):
        p(), r()  # warm
        pt, rt = [], []
        for _ in range(rounds):  # interleaved, so both see the same machine
            pt.append(timed(p))
            rt.append(timed(r))
        rows.append((label, min(pt), statistics.median(pt), min(rt), statistics.median(rt)))
    return rows


def main():
    if len(sys.argv) == 4 and sys.argv[1] == "twins":
        write_twins(sys.argv[2], sys.argv[3])
        return
    ap = argparse.ArgumentParser()
    ap.add_argument("command", choices=["run"])
    ap.add_argument("--url", required=True)
    ap.add_argument("--label", required=True)
    ap.add_argument("--rounds", type=int, default=7)
    args = ap.parse_args()
    client = Client(args.url)
    counts = fill(client)
    check(client)
    print("bench-cimom: %s system: %s" % (args.label, ", ".join("%d %s" % (n, c) for c, n in counts.items())))
    print("  %-40s %21s %21s %7s %7s" % ("operation (ms)", "provider min/median", "repository min/median",
                                         "min", "median"))
    for label, pmin, pmed, rmin, rmed in measure(client, args.rounds):
        print("  %-40s %10.2f %10.2f %10.2f %10.2f %6.2fx %6.2fx" % (label, pmin, pmed, rmin, rmed,
                                                                   pmin / rmin, pmed / rmed))
    sys.stdout.flush()


if __name__ == "__main__":
    main()
