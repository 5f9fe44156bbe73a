#!/usr/bin/env python3
"""Merge translated texts into the nine src/i18n/morvane_<lang>.ts files.

Input: a JSON file {"key": {"en": "...", "nl": "...", ...}, ...}. Every key must carry all nine
languages. Existing keys are replaced, others kept; messages stay sorted by key so that diffs
are small. Developer tool only: the build reads the .ts files themselves.
"""
import json
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

LANGUAGES = ["en", "nl", "de", "fr", "es", "it", "pt", "ja", "th"]
LOCALES = {"en": "en_US", "nl": "nl_NL", "de": "de_DE", "fr": "fr_FR", "es": "es_ES",
           "it": "it_IT", "pt": "pt_BR", "ja": "ja_JP", "th": "th_TH"}
ROOT = Path(__file__).resolve().parents[2] / "src" / "i18n"


def read(path):
    texts = {}
    if path.exists():
        for message in ET.parse(path).getroot().iter("message"):
            source = message.findtext("source") or ""
            translation = message.findtext("translation") or ""
            texts[message.get("id")] = (source, translation)
    return texts


def write(path, language, texts):
    ts = ET.Element("TS", version="2.1", language=LOCALES[language])
    context = ET.SubElement(ts, "context")
    ET.SubElement(context, "name").text = "Morvane"
    for key in sorted(texts):
        source, translation = texts[key]
        message = ET.SubElement(context, "message", id=key)
        ET.SubElement(message, "source").text = source
        ET.SubElement(message, "translation").text = translation
    ET.indent(ts)
    body = ET.tostring(ts, encoding="unicode")
    path.write_text('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n' + body + "\n", encoding="utf-8")


def main():
    new = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
    for key, texts in new.items():
        missing = [lang for lang in LANGUAGES if not texts.get(lang)]
        if missing:
            sys.exit(f"{key}: missing {', '.join(missing)}")
    for language in LANGUAGES:
        path = ROOT / f"morvane_{language}.ts"
        texts = read(path)
        for key, translations in new.items():
            texts[key] = (translations["en"], translations[language])
        write(path, language, texts)


if __name__ == "__main__":
    main()
