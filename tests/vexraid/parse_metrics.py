#!/usr/bin/python3
"""Reads a Prometheus text exposition from standard input with the parser of
python3-prometheus-client and prints what it found as JSON: one entry per
family with its type and samples. Exits non-zero when the text does not parse."""
import json
import sys

from prometheus_client.parser import text_string_to_metric_families

families = []
for family in text_string_to_metric_families(sys.stdin.read()):
    families.append({
        "name": family.name,
        "type": family.type,
        "help": family.documentation,
        "samples": [{"name": s.name, "labels": s.labels, "value": s.value} for s in family.samples],
    })
json.dump(families, sys.stdout)
