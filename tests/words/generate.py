"""Makes pages of HTML with all that readers of manuscripts stumble over, the same ones for the same seed."""
import os
import random

INLINE = ["b", "i", "em", "strong", "u", "small", "span", "code", "sub", "cite", "mark", "font", "w:sdt", "abbr"]
BLOCK = ["p", "div", "section", "article", "aside", "blockquote", "h2", "h3", "figure", "header", "main", "center", "pre", "details"]
SPACES = [" ", "\n", "  ", "\u2009", "\u3000", "\u202f", "&nbsp;"]


class Page:
    """One page; each word in it is a different one, so that lost and doubled words show."""

    def __init__(self, random_numbers):
        self.random = random_numbers
        self.number = 0
        self.names = []

    def word(self):
        self.number += 1
        return f"w{self.number}" + self.random.choice(["", "", "", "é", "ß", "—", "&amp;", "&lt;x", "'s", "漢字", "😀"])

    def words(self, count):
        text = self.word()
        for _ in range(count):
            text += self.random.choice(SPACES) + self.word()
        return text

    def name(self):
        self.names.append(f"n{len(self.names)}")
        return self.names[-1]

    def inline(self, depth=0):
        kind = self.random.randrange(14)
        if depth > 3 or kind < 5:
            return self.words(self.random.randrange(4))
        tag = self.random.choice(INLINE)
        if kind < 8:
            end = "" if self.random.random() < 0.08 else f"</{tag}>"
            return f"<{tag}>{self.inline(depth + 1)}{end}"
        return self.random.choice([
            lambda: f"{self.word()}<br>{self.word()}",
            lambda: f'<a id="{self.name()}"></a>{self.word()}',
            lambda: f'{self.word()}<a name="{self.name()}"></a>',
            lambda: f'<a href="#{self.random.choice(self.names or ["none"])}">{self.words(1)}</a>',
            lambda: f'<a id="{self.name()}" href="#{self.random.choice(self.names)}">{self.words(2)}</a>',
            lambda: f"<!-- unseen -->{self.word()}<script>if (1 < 2) unseen();</script>",
            lambda: f'{self.word()} < {self.word()} > ',
            lambda: f'<span style="display:none">unseen</span>{self.word()}',
            lambda: f'<span style="display:block">{self.word()}</span>',
            lambda: f'<span style="border-style:initial;margin:1em 2ex;text-indent:-5%">{self.inline(depth + 1)}</span>',
            lambda: f"<svg><text>{self.word()}</text><title>unseen</title></svg>".replace("<title>unseen</title>", ""),
            lambda: f"<wbr>{self.word()}<input type=text value=unseen>",
            lambda: f'<input value="{self.word()}"><input type=Submit value="{self.word()}"><input type=radio value=unseen>',
            lambda: f"<button>{self.word()}</button><button>{self.word()}</button><dialog>unseen</dialog>",
            lambda: f"<search>{self.word()}</search><dialog open>{self.word()}</dialog>",
        ])()

    def table(self, depth):
        rows = ""
        for _ in range(self.random.randrange(1, 4)):
            cells = ""
            for _ in range(self.random.randrange(1, 4)):
                span = self.random.choice(["", "", f" colspan={self.random.randrange(1, 4)}", f" rowspan={self.random.randrange(1, 4)}"])
                tag = self.random.choice(["td", "td", "th"])
                cells += f"<{tag}{span}>{self.block(depth + 1) if self.random.random() < 0.2 else self.inline()}"
                cells += self.random.choice(["", f"</{tag}>"])
            rows += f'<tr id="{self.name()}">{cells}'
        return f"<table><caption>{self.word()}</caption>{rows}</table>"

    def list(self, depth):
        tag = self.random.choice(["ul", "ol", 'ol start="5"'])
        items = "".join(f"<li>{self.block(depth + 1) if self.random.random() < 0.3 else self.inline()}"
                        for _ in range(self.random.randrange(1, 4)))
        return f'<{tag} id="{self.name()}">{items}</{tag.split()[0]}>'

    def block(self, depth=0):
        kind = self.random.randrange(12)
        if depth < 4 and kind == 0:
            return self.table(depth)
        if depth < 4 and kind == 1:
            return self.list(depth)
        if kind == 2:
            return f"<dl><dt>{self.inline()}<dd>{self.inline()}</dl>"
        if kind == 3:
            return self.random.choice(["<hr>", f'<hr id="{self.name()}">', f"{self.word()}<p></p>", "<style>p { color: red }</style>"])
        if kind == 4:
            return self.inline() + self.random.choice(["", "<br><br>"])
        tag = self.random.choice(BLOCK)
        style = self.random.choice(["", "", f' style="{self.style()}"', f' id="{self.name()}"'])
        inside = self.inline() + (" " + self.inline() if self.random.random() < 0.5 else "")
        if depth < 3 and tag not in ("p", "pre", "h2", "h3") and self.random.random() < 0.5:
            inside += self.block(depth + 1)
        return f"<{tag}{style}>{inside}" + ("" if self.random.random() < 0.1 else f"</{tag}>")

    def style(self):
        pairs = ["text-indent:1.5em", "margin:0 10% 1em", "border:3px hidden red", "border-style:unset", "float:left", "font:italic 12pt/1.4 Georgia",
                 "white-space:pre-wrap", "letter-spacing:.1ex", "page-break-before:always", "width:50%", "text-align:justify",
                 "background:url(/dev/zero)", "background-image:url(none.png)", "line-height:150%", "direction:rtl", "color:rgb(1,2"]
        return ";".join(self.random.sample(pairs, 2))

    def text(self):
        body = "\n".join(self.block() for _ in range(self.random.randrange(2, 9)))
        head = self.random.choice(["", "<head><title>T</title>", "<!DOCTYPE html><html><head><style>h2 { text-indent: 1em }</style></head>",
                                   "<head><script>a < b</script></head><body>", "<title>T</title>"])
        return head + body


def write_documents(folder, count, seed):
    files = []
    for number in range(count):
        page = Page(random.Random(seed * 1000003 + number))
        files.append(os.path.join(folder, f"page{number}.html"))
        with open(files[-1], "w", encoding="utf-8") as file:
            file.write(page.text())
    return files
