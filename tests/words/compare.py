#!/usr/bin/python3
"""Compares words, links and pictures of manuscripts with those of the pages and e-books that `mrv export` makes of them.

Both are read by html5lib, which shares no code with the library: what a browser shows of the one has to be what it shows of
the other, in order, and each link has to lead to the same text. Notes of an e-book have moved: each of them has to be found
whole in the manuscript.

usage: compare.py MRV [--documents N] [--seed S] [FILE...] [--through FORMAT]...
N pages are generated with all that may go wrong; FILEs, HTML or Markdown, come besides; with FORMATs such as
docx, pandoc makes files of these formats of them, and a page to compare with. Exits with 1 where something differs.
"""
import argparse
import bisect
import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
import zipfile

import html5lib

import generate

UNSEEN = {"head", "title", "script", "style", "template", "noframes", "noembed", "iframe", "datalist", "audio", "video"}
BLOCKS = set("""address article aside blockquote body caption center dd details dir div dl dt fieldset figcaption figure footer form h1
h2 h3 h4 h5 h6 header hgroup hr html legend li main menu nav ol optgroup option p pre section summary table tbody td textarea tfoot
th thead tr ul listing plaintext xmp br img input object embed svg text button canvas dialog meter progress search""".split())
NO_VALUE = {"hidden", "image", "checkbox", "color", "file", "password", "radio", "range"}  # fields that do not show it
SPACES = " \t\n\r\f\v\u2028\u2029\u00a0"


class Content:
    """What a browser shows of pages: words, and by the number of characters before them, names, links and pictures."""

    def __init__(self):
        self.words, self.links, self.pictures, self.names = [], [], 0, {}
        self.count, self.word = 0, ""
        self.moved = []  # the words of each note, from one up to another

    def add_text(self, text):
        for character in text or "":
            if character in SPACES:
                self.end_word()
            else:
                self.word += character
                self.count += 1

    def end_word(self):
        if self.word:
            self.words.append(self.word)
            self.word = ""

    def add(self, element, page=""):
        if not isinstance(element.tag, str):  # a comment
            return
        tag = element.tag.split("}")[-1]
        style = element.get("style", "").replace(" ", "")
        isClosed = tag == "dialog" and element.get("open") is None
        if tag in UNSEEN or isClosed or "display:none" in style or element.get("hidden") is not None:
            return
        for name in {element.get("id"), element.get("name") if tag == "a" else None} - {None, ""}:
            self.names.setdefault(page + "#" + name, self.count)
        if tag in BLOCKS or "display:block" in style:
            self.end_word()
        address = element.get("href", "") if tag == "a" else ""
        start = self.count
        if tag == "img" and element.get("src"):
            self.pictures += 1
        if tag == "input" and element.get("type", "").lower() not in NO_VALUE:
            self.add_text(element.get("value"))
        self.add_text(element.text)
        for child in element:
            first = len(self.words)
            self.add(child, page)
            if page and tag == "section" and element.get("class") == "notes":
                self.moved.append((first, len(self.words)))
            self.add_text(child.tail)
        if "#" in address and "//" not in address and (self.count > start or element.find(".//*") is not None):
            self.add_link(start, page + address if address.startswith("#") else address)
        if tag in BLOCKS or "display:block" in style:
            self.end_word()

    def add_link(self, start, address):
        """A link with a name inside of it is written in several parts."""
        if self.links and self.links[-1][1:] == (address, start):
            start = self.links.pop()[0]
        self.links.append((start, address, self.count))

    def targets(self):
        """(place of a link, place that it leads to), for links whose target exists; a link in several parts counts once."""
        last = self.count - 1
        return sorted({(at, min(self.names[address], last)) for at, address, _ in self.links if address in self.names})


def moved_back(found, expected):
    """The content with its notes where they stand in what is expected."""
    notes = {}
    for begin, end in found.moved:
        if begin < end:
            notes.setdefault(found.words[begin], []).append((begin, end))
    moved = {word for begin, end in found.moved for word in range(begin, end)}
    text = [word for word in range(len(found.words)) if word not in moved]
    order, done = [], 0
    while len(order) < len(expected.words):
        at = len(order)
        word = expected.words[at]
        isOther = done == len(text) or found.words[text[done]] != word
        fits = [(begin, end) for begin, end in notes.get(word, []) if (isOther or end - begin > 2)
                and found.words[begin:end] == expected.words[at:at + end - begin]]
        if fits:
            notes[word].remove(fits[0])
            order += range(*fits[0])
        elif done < len(text):
            order.append(text[done])
            done += 1
        else:
            break
    order += text[done:] + [word for left in notes.values() for begin, end in left for word in range(begin, end)]
    begins, places, count = [0], [0] * (len(found.words) + 1), 0
    for word in found.words:
        begins.append(begins[-1] + len(word))
    for word in order:
        places[word] = count
        count += len(found.words[word])
    places[-1] = count

    def place(position):
        word = bisect.bisect_right(begins, position) - 1
        return places[word] + position - begins[word]

    result = Content()
    result.words, result.pictures, result.count = [found.words[word] for word in order], found.pictures, count
    result.names = {name: place(at) for name, at in found.names.items()}
    result.links = [(place(at), address, end) for at, address, end in found.links]
    return result


def content_of_html(data):
    content = Content()
    try:
        text = data.decode("utf-8-sig")
    except UnicodeDecodeError:
        text = data.decode("latin-1")
    content.add(html5lib.parse(text))
    content.end_word()
    return content


def content_of_book(path):
    content = Content()
    with zipfile.ZipFile(path) as book:
        opf = next(name for name in book.namelist() if name.endswith(".opf"))
        package = ET.fromstring(book.read(opf))
        items = {item.get("id"): item.get("href") for item in package.iter() if item.tag.endswith("}item")}
        for reference in (item for item in package.iter() if item.tag.endswith("}itemref")):
            page = items[reference.get("idref")]
            if page.endswith(("cover.xhtml", "nav.xhtml", "title.xhtml")):
                continue
            content.add(html5lib.parse(book.read(os.path.join(os.path.dirname(opf), page)).decode("utf-8")), os.path.basename(page))
    content.end_word()
    return content


def difference(expected, found, path=""):
    if path.endswith(".rtf"):  # pandoc writes no names of places there
        expected.names = found.names = {}
    found = moved_back(found, expected) if found.moved else found
    for at, (one, other) in enumerate(zip(expected.words + [""], found.words + [""])):
        if one != other:
            return f"word {at}: {expected.words[at:at + 8]} became {found.words[at:at + 8]}"
    if expected.pictures != found.pictures:
        return f"{expected.pictures} pictures became {found.pictures}"
    if expected.targets() != found.targets():
        lost = set(expected.targets()) - set(found.targets())
        return f"links (place, target) {sorted(lost)[:5]} became {sorted(set(found.targets()) - set(expected.targets()))[:5]}"
    return ""


def written_through(path, kind, folder):
    copy = os.path.join(folder, f"{os.path.basename(path)}.{kind}")
    for output in copy, copy + ".html":
        whole = ["--standalone"] if output.endswith(".rtf") else []  # else RTF has no signature
        subprocess.run(["pandoc", path, "-o", output, "--resource-path", os.path.dirname(path), *whole], check=True)
    return copy


def source_of(path):
    path += ".html" if os.path.exists(path + ".html") else ""
    with open(path, "rb") as file:
        data = file.read()
    if not path.endswith(".md"):
        return data
    run = subprocess.run(["cmark-gfm", "--unsafe", "-e", "table", "-e", "strikethrough", "-e", "autolink", "-e", "tasklist",
                          "-e", "footnotes"], input=data, capture_output=True, check=True)
    return run.stdout


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("mrv")
    arguments.add_argument("--documents", type=int, default=0)
    arguments.add_argument("--seed", type=int, default=1)
    arguments.add_argument("--through", action="append", default=[])
    arguments.add_argument("files", nargs="*")
    options = arguments.parse_args()
    failed = 0
    with tempfile.TemporaryDirectory() as folder:
        if options.through:
            options.files = [written_through(path, kind, folder) for path in options.files for kind in options.through]
        files = options.files + generate.write_documents(folder, options.documents, options.seed)
        for kind, suffix, read in (("xhtml", "xhtml", lambda path: content_of_html(open(path, "rb").read())),
                                   ("epub", "epub", content_of_book)):
            for path in files:
                output = os.path.join(folder, "out." + suffix)
                run = subprocess.run([options.mrv, "export", path, "--to", kind, "-o", output], capture_output=True, text=True)
                problem = run.stderr.strip() if run.returncode else difference(content_of_html(source_of(path)), read(output), path)
                if problem:
                    failed += 1
                    print(f"{os.path.basename(path)} to {kind}: {problem}")
                    if not options.files:
                        print(open(path, encoding="utf-8").read()[:3000])
    print(f"{len(files)} manuscripts, {failed} differences")
    return 1 if failed or not files else 0


if __name__ == "__main__":
    sys.exit(main())
