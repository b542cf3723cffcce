#!/usr/bin/env python3
"""The page about a file: all of it there, whole, from nowhere else, and with nothing of the file's taken for markup.

check-report.py PROGRAM SAMPLE WORK [FILE...]: a line for each check that fails, exit code 1 when there are any.
"""
import base64
import json
import os
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as tree

PROGRAM, SAMPLE, WORK = sys.argv[1:4]
XHTML = "{http://www.w3.org/1999/xhtml}"
SVG = "{http://www.w3.org/2000/svg}"
failed = 0


def check(good, what):
    global failed
    if not good:
        failed += 1
        print("FAILED: report:", what)


def page_of(file, code):
    out = os.path.join(WORK, "page.html")
    done = subprocess.run([PROGRAM, "report", file, "-o", out], capture_output=True)
    check(done.returncode == code, f"exit code {done.returncode} in place of {code}: {file}: {done.stderr[-300:]}")
    with open(out, "rb") as page:
        data = page.read()
    check(not re.search(rb"[\x00-\x08\x0b-\x1f\x7f]", data), f"a control byte stands in the page of {file}")
    page = tree.fromstring(data)
    for element in page.iter():
        for name, value in element.attrib.items():
            check(not name.lower().startswith("on"), f"{name} in the page of {file}")
            if name.split("}")[-1] in ("href", "src", "data", "action", "srcset"):
                check(value.startswith(("#", "data:image/png;base64,")), f"{value[:80]} in the page of {file}")
    style = "".join(element.text or "" for element in page.iter(XHTML + "style"))
    check("url(" not in style and "@import" not in style, f"the style of the page of {file} asks for more")
    check(len(list(page.iter(XHTML + "script"))) == 1 and not list(page.iter(XHTML + "link")) and
          not list(page.iter(SVG + "script")), f"scripts or links in the page of {file}")
    return page


def text_of(element):
    return "".join(element.itertext())


page = page_of(SAMPLE, 0)
told = json.loads(subprocess.run([PROGRAM, "json", SAMPLE], capture_output=True).stdout)
names = {text_of(row.find(XHTML + "td")) for row in page.iter(XHTML + "tr") if row.get("class") == "field"}
for segment in told["segments"]:
    for fields in [segment["fields"]] + [tre["fields"] for tre in segment["tres"]]:
        missing = [name for name, _ in fields if name not in names]
        check(not missing, f"fields that have no row: {missing[:5]}")
titles = [text_of(summary) for summary in page.iter(XHTML + "summary")]
for segment in told["segments"]:
    for tre in segment["tres"]:
        check(any(title.startswith(f"TRE {tre['tag'].strip()}: ") for title in titles), f"no TRE {tre['tag']}")
everything = text_of(page)
for words in ("UNCLASSIFIED (U)", "Sample of an image chip", "not compressed (NC)", "58.405750 N", "0 errors",
              "Image Geographic Location", "Row Count, rows. Number of rows in the block."):
    check(words in everything, f"the page does not say {words}")
sections = [section.get("id") for section in page.iter(XHTML + "section")]
check(sections == ["file", "findings", "map", "images", "drawing", "fields"], f"other sections: {sections}")
check(len([path for path in page.iter(SVG + "path") if path.get("class") is None]) >= 1, "no footprint on the map")
pictures = list(page.iter(XHTML + "img"))
if pictures:
    check(base64.b64decode(pictures[0].get("src").split(",", 1)[1]).startswith(b"\x89PNG"), "the picture is no PNG")
check(len(pictures) == 1, "no picture of the image")

# In a browser the search is there and finds a field; nothing is wrong with the script.
browser = shutil.which("chromium")
if browser:
    with open(os.path.join(WORK, "page.html")) as file:
        text = file.read()
    asked = os.path.join(WORK, "asked.html")
    with open(asked, "w") as file:
        file.write(text.replace("</body>", """<script>var asked = document.getElementById("search");
asked.value = "l_lines"; asked.dispatchEvent(new Event("input"));</script></body>"""))
    seen = subprocess.run([browser, "--headless", "--no-sandbox", "--disable-gpu", "--enable-logging=stderr",
                           "--user-data-dir=" + os.path.join(WORK, "browser"), "--dump-dom", "file://" + asked],
                          capture_output=True, text=True)
    check("CONSOLE" not in seen.stderr, "the script is at fault: " + "".join(re.findall(".*CONSOLE.*", seen.stderr)))
    check(re.search('<input id="search"[^>]*>', seen.stdout) and
          "hidden" not in re.search('<input id="search"[^>]*>', seen.stdout).group(), "there is no search")
    shown = re.findall('<tr class="field"><td class="name">([^<]*)', seen.stdout)
    check(shown and all("L_LINES" in name for name in shown), f"the search finds {shown[:5]}")

# A title, an identifier, a text and a tag that try to be markup.
with open(SAMPLE, "rb") as file:
    data = bytearray(file.read())
hostile = b"</td><script>alert(1)</script>\"'&lt;<img src=x>\x00\x1b\x9b\xe9"
at = data.index(b"Sample of an image chip")
data[at:at + len(hostile)] = hostile
at = data.index(b"BLOCKA")
data[at:at + 6] = b"<b>&\"'"
name = os.path.join(WORK, "<img src=x onerror=alert(1)>&.ntf")
with open(name, "wb") as file:
    file.write(data)
page = page_of(name, 0)
everything = text_of(page)
check("</td><script>alert(1)</script>\"'&lt;<img src=x>\\x00\\x1B\\x9B\\xE9" in everything, "a title is not told as it is")
check("TRE <b>&\"': not decoded" in everything, "a tag is not told as it is")
check("<img src=x onerror=alert(1)>&.ntf" in everything, "a name is not told as it is")

# A damaged file, of which the page shows what can be read.
segment = next(s for s in told["segments"] if s["kind"] == "TextSegment")
with open(SAMPLE, "rb") as file:
    data = bytearray(file.read())
data[segment["header_offset"]] = 0x58
name = os.path.join(WORK, "broken.ntf")
with open(name, "wb") as file:
    file.write(data)
page = page_of(name, 1)
check("text 0" in text_of(page) and "not readable" in text_of(page), "a damaged segment is not told")
done = subprocess.run([PROGRAM, "report", os.path.join(WORK, "absent")], capture_output=True)
check(done.returncode == 2 and not done.stdout, "an absent file has a page")
for file in sys.argv[4:]:
    page_of(file, 0)
sys.exit(1 if failed else 0)
