"""Checks that every link in a folder of HTML pages leads to a page and a place of the folder: links.py FOLDER"""

import html.parser
import pathlib
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.places = set(), set()
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("href", "src", "data") and value:
                self.links.add(value)
            if name == "id" or (tag == "a" and name == "name"):
                self.places.add(value)


folder = pathlib.Path(sys.argv[1])
pages = {path.name: Page(path) for path in sorted(folder.glob("*.html"))}
dead = []
for name, page in pages.items():
    for link in sorted(page.links):
        target = urllib.parse.urlsplit(link)
        if target.scheme:
            continue
        file = urllib.parse.unquote(target.path) or name
        place = urllib.parse.unquote(target.fragment)
        if not (folder / file).exists() or (place and file in pages and place not in pages[file].places):
            dead.append(f"{name}: {link} leads nowhere")
print("\n".join(dead), end="\n" if dead else "")
sys.exit(1 if dead or not pages else 0)
