# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws pictures of screens with a browser, and knows what stands in each: corpus.py FOLDER."""

import html
import json
import os
import subprocess
import sys
import tempfile

import texts

LIGHT = dict(ground="#ffffff", ink="#1d1d1f", soft="#6b6b70", panel="#f2f2f5", accent="#2563eb", line="#d9d9de")
DARK = dict(ground="#1e1e22", ink="#e6e6ea", soft="#9a9aa2", panel="#2a2a30", accent="#3b82f6", line="#3a3a42")
SOLARIZED = dict(ground="#002b36", ink="#93a1a1", soft="#586e75", panel="#073642", accent="#2aa198", line="#094352")


def page(body, colours, font, size, extra=""):
    return f"""<!doctype html><meta charset="utf-8"><style>
      * {{ box-sizing: border-box; }}
      body {{ margin: 0; background: {colours['ground']}; color: {colours['ink']}; font: {size}px/1.5 {font}; }}
      {extra}</style>{body}"""


def lines(items):
    return "".join(f"<div>{html.escape(item)}</div>" for item in items)


def prose(items, colours, font, size):
    body = f"<div style='padding:40px 60px'>{''.join(f'<p style=margin:0_0_10px>{html.escape(i)}</p>'.replace('_', ' ') for i in items)}</div>"
    return page(body.replace("style=margin:0 0 10px", "style='margin:0 0 10px'"), colours, font, size), items


def columns(items, colours, font, size):
    half = (len(items) + 1) // 2
    body = "<h1 style='margin:30px 60px 0'>Harbour News</h1><div style='display:flex;gap:70px;padding:20px 60px'>"
    for part in (items[:half], items[half:]):
        body += "<div style='flex:1'>" + "".join(f"<p>{html.escape(item)}</p>" for item in part) + "</div>"
    nav = f"<div style='background:{colours['accent']};color:#fff;padding:12px 60px'>Timetable &nbsp; Prices &nbsp; Contact</div>"
    return page(nav + body + "</div>", colours, font, size), ["Timetable", "Prices", "Contact", "Harbour News", *items]


def mono(items, colours, size, inks=()):
    spans = []
    for index, item in enumerate(items):
        ink = inks[index % len(inks)] if inks else colours["ink"]
        spans.append(f"<div style='color:{ink};white-space:pre'>{html.escape(item) or ' '}</div>")
    body = f"<div style='padding:16px 20px'>{''.join(spans)}</div>"
    return page(body, colours, "'DejaVu Sans Mono'", size), [item for item in items if item]


def interface(colours, font, size):
    menu = "".join(f"<span style='margin-right:22px'>{item}</span>" for item in texts.MENU)
    side = "".join(f"<div style='padding:5px 18px;{selected(index, colours)}'>{item}</div>"
                   for index, item in enumerate(texts.SIDEBAR))
    rows = "".join(
        f"<div style='padding:9px 20px;border-bottom:1px solid {colours['line']}'><div style='display:flex'><b>{who}</b>"
        f"<span style='margin-left:auto;color:{colours['soft']}'>{when}</span></div><div style='color:{colours['soft']}'>{what}</div></div>"
        for who, what, when in texts.MESSAGES)
    buttons = "".join(button(item, index == 1, colours) for index, item in enumerate(texts.BUTTONS))
    body = (f"<div style='padding:6px 16px;background:{colours['panel']}'>{menu}</div><div style='display:flex'>"
            f"<div style='width:220px;background:{colours['panel']};padding:12px 0;height:430px'>{side}</div>"
            f"<div style='flex:1'>{rows}</div></div><div style='padding:14px 20px;text-align:right'>{buttons}</div>")
    truth = [*texts.MENU, *texts.SIDEBAR, *texts.BUTTONS]
    for message in texts.MESSAGES:
        truth += message
    return page(body, colours, font, size), truth


def selected(index, colours):
    return f"background:{colours['accent']};color:#fff" if index == 0 else ""


def button(text, is_chief, colours):
    look = f"background:{colours['accent']};color:#fff" if is_chief else f"border:1px solid {colours['line']}"
    return f"<span style='padding:6px 14px;border-radius:6px;margin-left:10px;{look}'>{text}</span>"


def settings(colours, font, size):
    rows = "".join(
        f"<div style='display:flex;padding:12px 30px;border-bottom:1px solid {colours['line']}'><div><b>{name}</b>"
        f"<div style='color:{colours['soft']};font-size:90%'>{what}</div></div>"
        f"<span style='margin-left:auto;background:{colours['panel']};padding:8px 14px;border-radius:6px'>{value}</span></div>"
        for name, what, value in texts.SETTINGS)
    truth = []
    for name, what, value in texts.SETTINGS:
        truth += [name, value, what]
    return page(rows, colours, font, size), truth


CODE_INKS = ["#569cd6", "#6a9955", "#d4d4d4", "#c586c0", "#dcdcaa", "#ce9178"]
LIGHT_INKS = ["#0000c0", "#008000", "#202020", "#a626a4", "#795e26", "#a31515"]
SANS, SERIF = "'Noto Sans'", "'Noto Serif'"


def pictures():
    """Name, class, scale, width, height and what is drawn, one after the other."""
    e = texts.ENGLISH
    yield "page-1", "page, light", 1, 1000, 620, prose(e, LIGHT, SERIF, 16)
    yield "page-2", "page, light", 1, 1000, 560, prose(e, LIGHT, "'DejaVu Sans'", 13)
    yield "page-3", "page, dark", 1, 1000, 620, prose(e, DARK, SANS, 15)
    yield "page-4", "page, dark", 1, 1000, 560, prose(e, SOLARIZED, "'DejaVu Sans'", 13)
    yield "web-1", "web page", 1, 1280, 700, columns(e, LIGHT, SANS, 16)
    yield "web-2", "web page", 1, 1280, 640, columns(e, DARK, SERIF, 15)
    yield "ui-1", "interface, light", 1, 1000, 560, interface(LIGHT, SANS, 13)
    yield "ui-2", "interface, light", 1, 900, 400, settings(LIGHT, "'DejaVu Sans'", 13)
    yield "ui-3", "interface, dark", 1, 1000, 560, interface(DARK, SANS, 13)
    yield "ui-4", "interface, dark", 1, 900, 400, settings(DARK, "'DejaVu Sans'", 13)
    yield "small-1", "small print", 1, 1000, 560, interface(LIGHT, SANS, 11)
    yield "small-2", "small print", 1, 900, 420, prose(e, LIGHT, "'DejaVu Sans'", 10)
    yield "small-3", "small print", 1, 900, 420, prose(e, DARK, SANS, 11)
    yield "code-1", "code", 1, 900, 440, mono(texts.CODE, LIGHT, 13, LIGHT_INKS)
    yield "code-2", "code", 1, 900, 480, mono(texts.CODE, DARK, 14, CODE_INKS)
    yield "terminal-1", "terminal", 1, 900, 400, mono(texts.TERMINAL, dict(DARK, ground="#000000", ink="#d0d0d0"), 13)
    yield "terminal-2", "terminal", 1, 900, 420, mono(texts.TERMINAL, dict(DARK, ground="#300a24", ink="#8ae234"), 14)
    yield "scale-1", "two pixels a point", 2, 1000, 620, prose(e, LIGHT, SANS, 14)
    yield "scale-2", "two pixels a point", 2, 1000, 560, interface(DARK, SANS, 13)
    yield "scale-3", "half more", 1.5, 1000, 560, interface(LIGHT, "'DejaVu Sans'", 13)
    yield "german-1", "German", 1, 1000, 520, prose(texts.GERMAN, LIGHT, SANS, 15)
    yield "german-2", "German", 1, 1000, 520, prose(texts.GERMAN, DARK, "'DejaVu Sans'", 13)
    yield "french-1", "French", 1, 1000, 520, prose(texts.FRENCH, LIGHT, SERIF, 15)
    yield "french-2", "French", 1, 1000, 520, prose(texts.FRENCH, DARK, "'DejaVu Sans'", 13)
    yield "greek-1", "Greek", 1, 1000, 460, prose(texts.GREEK, LIGHT, SANS, 15)
    yield "greek-2", "Greek", 1, 1000, 460, prose(texts.GREEK, DARK, "'DejaVu Sans'", 13)
    yield "japanese-1", "Japanese", 1, 900, 440, prose(texts.JAPANESE, LIGHT, "'Noto Sans CJK JP'", 16)
    yield "japanese-2", "Japanese", 1, 900, 440, prose(texts.JAPANESE, DARK, "'Noto Sans CJK JP'", 15)
    yield "screen-1", "whole screen", 1, 1920, 1080, columns(e * 3, LIGHT, SANS, 16)


def draw(folder, name, scale, width, height, source):
    with tempfile.TemporaryDirectory() as profile:
        path = os.path.join(profile, "page.html")
        with open(path, "w", encoding="utf-8") as file:
            file.write(source)
        subprocess.run(["chromium", "--headless", "--no-sandbox", "--hide-scrollbars", f"--user-data-dir={profile}",
                        f"--force-device-scale-factor={scale}", f"--window-size={width},{height}",
                        f"--screenshot={os.path.join(folder, name + '.png')}", "file://" + path],
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True, timeout=60)


def make(folder):
    """Draws what is not there yet. The list of what is."""
    os.makedirs(folder, exist_ok=True)
    entries = []
    for name, kind, scale, width, height, (source, truth) in pictures():
        if not os.path.exists(os.path.join(folder, name + ".png")):
            draw(folder, name, scale, width, height, source)
        entries.append(dict(name=name, kind=kind, truth=truth))
    with open(os.path.join(folder, "corpus.json"), "w", encoding="utf-8") as file:
        json.dump(entries, file, ensure_ascii=False, indent=1)
    return entries


if __name__ == "__main__":
    make(sys.argv[1])
