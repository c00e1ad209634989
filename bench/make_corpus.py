#!/usr/bin/env python3
"""Seeded texts for bench/compare.py; the same arguments always give the same bytes.

  make_corpus.py FOLDER MB       prose, everyday, mixed, misread, html and lines, MB megabytes each (of lines
                                 as many as there are in 64 MB by the million), and the clip of 1 KB
  make_corpus.py --hostile FOLDER MB
  make_corpus.py --guarded FOLDER MB   prose without marks, however its lines end; and prose with all that it may have

Texts that exist already are left as they are.
"""
import os
import random
import sys

PLAIN = """the of and to in was his that with for it is on as her not have from by this had but which
one all were they there been their more when who will would about out up them then some into could
time only other new these two may first any my now such like our over man even most made after also
did many before must through back years where much your way well down should because each just
those people how too little state good very make world still own see men work long get here between
both life being under never day same another know while last might us great old year off come since
against go came right used take three himself few house use during without again place american
around however home small found thought went say part once general high upon school every""".split()
PARTS = """an ar be ca con de dis en er fa ga ho in ing ist ja ka la ler ment mi na ness no or ou pa
per pre pro qua re ri ro sa sen ship sta sub te ter tion tra ul un va ver vi wa ze""".split()
CYRILLIC = "и не он на что как это весь человек время рука слово город вопрос сторона страна".split()
GREEK = "και του την με που από είναι στην όμως κόσμος άνθρωπος ημέρα λόγος δρόμος μάτια".split()
ACCENTED = "élève naïve façade Übung über straße mañana señor coração żaba kůň smörgås blåbær".split()
HAN = "天地人日月山川木火土金水大小中上下左右東西南北春夏秋冬年時分学校先生会社国語文字新聞電車"
KANA = "のにはをたがでてとしれさあるいるもすることから"
EMOJI = "😀 👍🏽 🎉 🚀 👩‍💻 🇫🇷".split()
BULLETS = "•∙‣◦⁃◘◙➢"
WINDOWS_1252 = [bytes([byte]).decode("cp1252", "ignore") or chr(byte) for byte in range(256)]


class Writer:
    """Paragraphs of each kind, drawn from one random generator."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        made = {"".join(self.random.choices(PARTS, k=self.random.randint(2, 4))) for _ in range(5000)}
        self.words = PLAIN + sorted(made)
        self.weights = []
        for place in range(len(self.words)):  # a few words are most of a text
            self.weights.append((self.weights[-1] if place else 0) + 1 / (place + 6))

    def chance(self, share):
        return self.random.random() < share

    def some_words(self, count):
        return self.random.choices(self.words, cum_weights=self.weights, k=count)

    def put_on_one(self, words, form):
        at = self.random.randrange(len(words))
        words[at] = form.format(words[at])

    def sentence(self):
        words = self.some_words(self.random.randint(6, 22))
        words[0] = words[0].capitalize()
        for share, form in ((.1, '"{}"'), (.06, "'{}'"), (.05, "‘{}’"), (.05, "“{}”"), (.1, "{}'s"),
                            (.06, "{}’s"), (.5, "{},"), (.04, "{} –"), (.03, "{} --"), (.05, "{}..."),
                            (.03, "{} ,")):
            if self.chance(share):
                self.put_on_one(words, form)
        if self.chance(.08):
            words.insert(self.random.randrange(1, len(words)), str(self.random.randrange(99999)))
        return " ".join(words) + self.random.choice((".", ".", ".", ".", "?", "!", " .", "..."))

    def wrapped(self, text, line_break, width=None):
        """Broken at a fixed width as mail and PDF files are, some words divided."""
        lines, line, width = [], "", width or self.random.choice((64, 72, 78))
        for word in text.split(" "):
            if line and len(line) + len(word) >= width:
                if len(word) > 7 and word.isalpha() and self.chance(.3):
                    lines.append(line + " " + word[:4] + "-")
                    line = word[4:]
                else:
                    lines.append(line + (" " if self.chance(.06) else ""))
                    line = word
            else:
                line += " " + word if line else word
        return line_break.join(lines + [line])

    def prose(self):
        gap = "  " if self.chance(.25) else " "
        text = gap.join(self.sentence() for _ in range(self.random.randint(2, 7)))
        end = "\r\n" if self.chance(.9) else "\n"
        kind = self.random.random()
        if kind < .02:
            rows = ("name\t%s \t%d" % (word, self.random.randrange(999)) for word in self.some_words(5))
            return end.join(rows) + end * 2
        if kind < .1:
            text = "\t" + text
        elif kind < .14:
            text = "    " + text
        elif kind < .17:
            text = text.replace(" ", "\u00a0", 1)
        text = self.wrapped(text, end)
        if .2 < kind < .25:
            text = "> " + text.replace(end, end + "> ")
        elif .25 < kind < .3:
            bullet = self.random.choice(BULLETS) + " "
            text = bullet + text.replace(end, end + bullet)
        return text + end * (1 if self.chance(.3) else 2)

    def sentences(self):
        return " ".join(self.sentence() for _ in range(self.random.randint(2, 7)))

    def plain(self):
        return self.wrapped(self.sentences(), "\n") + "\n\n"

    def crlf(self):
        return self.wrapped(self.sentences(), "\r\n") + "\r\n\r\n"

    def wrapped72(self):
        return self.wrapped(self.sentences(), "\n", 72) + "\n\n"

    def unwrapped(self):
        return self.sentences() + "\n\n"

    def short(self):
        return self.sentence() + "\n" * (2 if self.chance(.7) else 1)

    def everyday(self):
        """Prose with what people's patterns look for, one to three in a paragraph."""
        words = self.prose().split(" ")
        for _ in range(self.random.randint(1, 3)):
            words[self.random.randrange(len(words))] += " " + self.find()
        text = " ".join(words)
        kind = self.random.random()
        if kind < .05:
            text = "$ ls -l %s\r\n" % self.some_words(1)[0] + text
        elif kind < .15:
            text = "%d. " % self.random.randint(1, 40) + text
        return text.replace("\r\n", "  \r\n", 1) if .3 < kind < .5 else text

    def find(self):
        one, two = self.some_words(2)
        number = self.random.randint
        return self.random.choice((
            one + "." + two + "@example.org", "https://www.example.com/%s?q=%s" % (one, two),
            "%d-%02d-%02d" % (number(1970, 2030), number(1, 12), number(1, 28)), one + " " + one,
            "an error in " + one, "<b>%s</b>" % two, "#%06x" % number(0, 0xFFFFFF),
            "192.168.%d.%d" % (number(0, 255), number(1, 254)), "%d,%02d" % (number(0, 999), number(0, 99)),
            "+49 30 %d" % number(10000, 9999999), one + two.capitalize(), "[%d]" % number(1, 99),
            self.random.choice(("draft", "Draft", "DRAFT")), one + "!!", "what??"))

    def mixed(self):
        kind, joint = self.random.random(), " "
        if kind < .5:
            words = self.random.choices(CYRILLIC if kind < .3 else GREEK, k=self.random.randint(15, 60))
        elif kind < .7:
            joint = ""
            words = ["".join(self.random.choices(HAN + KANA, k=self.random.randint(4, 20))) + "、"
                     for _ in range(self.random.randint(4, 14))]
        else:
            words = self.random.choices(ACCENTED, k=8) + self.some_words(self.random.randint(8, 40))
            self.random.shuffle(words)
        for _ in range(1 + len(words) // 10):
            self.put_on_one(words, self.random.choice(
                ("«{}»", "„{}“", "“{}”", "‹{}›", "「{}」", "{},", "{}.", "{}…", "{} —", "{}\u00a0", "{} ")))
        if self.chance(.3):
            self.put_on_one(words, "{} " + self.random.choice(EMOJI))
        words[0] = words[0].capitalize()
        bullet = self.random.choice(BULLETS) + " " if self.chance(.05) else ""
        return bullet + joint.join(words) + ".\n" + ("\n" if self.chance(.5) else "")

    def misread(self):
        """One paragraph of twenty was taken for windows-1252, now and then twice."""
        text = self.mixed()
        if self.chance(.05):
            for _ in range(1 + self.chance(.2)):
                text = "".join(WINDOWS_1252[byte] for byte in text.encode())
        return text

    def html(self):
        kind = self.random.random()
        name, value = self.some_words(2)
        if kind < .03:
            line = "if (%s < 7 && b > 2) { show('<b>%s</b>'); }\n" % (name, value)
            return "<script type=\"text/javascript\">\n" + line * 6 + "</script>\n"
        if kind < .05:
            return "<style>\n" + ".%s > a { margin: 4px }\n" % name * 5 + "</style>\n"
        if kind < .1:
            return "<!-- %s\n<p>old</p> -->\n" % self.sentence()
        if kind < .11:
            return "<?php echo \"%s\"; ?>\n" % name
        words = self.sentence().replace('"', "&quot;").split(" ")
        self.put_on_one(words, "<em>{}</em>")
        self.put_on_one(words, "<a href=\"/%s?x=1&amp;y=2\" title='%s > 1' class=\"c7\">{}</a>" % (name, value))
        if kind < .14:
            self.put_on_one(words, "{} < 5 &amp; 6 > x")
        return "<div class=\"%s\">\n  <p>%s</p><br/>\n</div>\n" % (value, " ".join(words))

    def line(self):
        words = self.some_words(self.random.randint(1, 5))
        kind = self.random.random()
        if kind < .4:
            words[0] = words[0].capitalize()
        elif kind < .45:
            words = [word.upper() for word in words]
        elif kind < .6:
            words.append(str(self.random.randrange(10 ** 6)))
        elif kind < .7:
            words.insert(0, self.random.choice(CYRILLIC + GREEK + ACCENTED))
        return " ".join(words)


def write_text(file, kind, size):
    """Eight megabytes of paragraphs, then those in random order up to the size."""
    writer = Writer(kind)
    pool = []
    made = 0
    while made < size:
        if made < 8 << 20:
            pool.append(getattr(writer, kind)().encode())
            paragraph = pool[-1]
        else:
            paragraph = writer.random.choice(pool)
        if kind != "html":  # an element cut off at the end would be read differently by each tool
            paragraph = paragraph[:size - made].decode(errors="ignore").encode() or b"."
        file.write(paragraph)
        made += len(paragraph)


def write_lines(file, count):
    writer = Writer("lines")
    known = []
    for _ in range(count):
        if known and writer.chance(.5):
            line = writer.random.choice(known)
        else:
            line = writer.line()
            known.append(line)
        file.write(line.encode() + b"\n")


# What makes careless code quadratic or worse: name -> (repeated, once at the end).
HOSTILE = {
    "comments-never-closed": ("<!--", ""),
    "tags-never-closed": ("<a ", ""),
    "instructions-never-closed": ("<?x ", ""),
    "quotes-across-tags": ("<a '", ">"),
    "one-quote-far-away": ("<a b ", "\" >"),
    "quotes-in-one-tag": ("\"\"''", ">"),
    "one-big-tag": ("x=\"1\" y='2' ", ">"),
    "tag-names": ("<a-:-:-:-:-:-:-:", ""),
    "apostrophes": ("'", ""),
    "closing-marks": ("’", ""),
    "spaced-marks": ("‹ ", ""),
    "spaces": (" ", ""),
    "two-kinds-of-space": ("\u00a0 ", ""),
    "bullets": ("•∙ ", ""),
    "hyphens": ("- ", ""),
    "dots": (" .", ""),
    "cr": ("\r", ""),
    "lf": ("\n", ""),
    "spaced-breaks": (" \r\n ", ""),
    "blanks-at-ends": ("lower case line   \n", ""),
    "quoted-lines": ("> a line\n", ""),
    "nested-items": ("  - an item\n    > a line\n", ""),
    "lines-never-ending": ("lower case line\n", ""),
    "one-line": ("word and ", ""),
    "one-word": ("abcdefghij", ""),
    "capital-lines": ("A\n", ""),
    "same-lines": ("same line\n", ""),
    "combining": ("e\u0301", ""),
    "thai": ("สวัสดีชาวโลกภาษาไทย", ""),
    "misread": ("Ð ÑƒÑ\ufffd√ü├îĂĽ п∙я│ í½ ", ""),
    "references": ("&amp;amp;", ""),
}


GUARDED = ("plain", "crlf", "wrapped72", "unwrapped", "short", "prose")


def write_hostile(file, name, size):
    unit, tail = (part.encode() for part in HOSTILE[name])
    head = b"<a " if name == "one-big-tag" else b""
    file.write(head + unit * (size // len(unit)) + tail)


def make(folder, name, write, *arguments):
    path = os.path.join(folder, name + ".txt")
    if not os.path.exists(path):
        with open(path + ".part", "wb") as file:
            write(file, *arguments)
        os.rename(path + ".part", path)


def main():
    arguments = [argument for argument in sys.argv[1:] if not argument.startswith("--")]
    if len(arguments) != 2:
        sys.exit(__doc__)
    folder, megabytes = arguments[0], float(arguments[1])
    size = int(megabytes * 1e6)
    os.makedirs(folder, exist_ok=True)
    if "--hostile" in sys.argv:
        for name in HOSTILE:
            make(folder, name, write_hostile, name, size)
        return
    if "--guarded" in sys.argv:
        for name in GUARDED:
            make(folder, name, write_text, name, size)
        return
    for kind in ("prose", "everyday", "mixed", "misread", "html"):
        make(folder, kind, write_text, kind, size)
    make(folder, "lines", write_lines, int(1e6 * megabytes / 64))
    make(folder, "clip", write_text, "prose", 1024)


if __name__ == "__main__":
    main()
