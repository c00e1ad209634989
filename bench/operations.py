"""What bench/compare.py measures: operations of `nerlo`, and what one would run instead of each.

A goal is ours divided by the tool's. "wall" is from start to exit, "cpu" the processor time of the
whole process tree, which is fairer to tools that use several cores.
"""
import collections
import sys

Rival = collections.namedtuple("Rival", "name argv goal stretch by utf8", defaults=(None, "wall", False))
# `memory` is the goal for the peak, in multiples of the text in UTF-16, without and with growth.
Row = collections.namedtuple("Row", "name title command options corpus memory rivals")

KEEPS, LENGTHENS, SORTS, DISTINCT = 1.25, 2.3, 4.2, 2.8

BULLETS = "•∙‣◦⁃◘◙➢"
DOTS = ".·。⋅・ᐧ․"
DASHES = "‐‒–—―−-"
SINGLE_MARKS = "‘’‚‹›『』'"
BREAKS = ("\r\n", "\r", "\n")
SLOTS = (("colour", "color"), ("house", "home"), (" and ", " & "), ("--", "—"), ("ment", "MENT"),
         ("1", "one"), ("years", "yrs"), ("zzzz", "y"), (", ", "; "), ("tion", "t"))


def tool(name, argv, goal, stretch=None, **more):
    return Rival(name, argv, goal, stretch, **more)


def tr(*arguments):
    return ["tr", *arguments]


def sed(script, *flags):
    return ["sed", "-E", *flags, script]


def sed_literals(pairs, *flags):
    def quoted(text):
        text = "".join("\\" + c if c in ".[]*^$/&\\+?(){}|" else c for c in text)
        return text.replace("\r", "\\r").replace("\n", "\\n").replace("\t", "\\t")
    return sed(";".join("s/%s/%s/g" % (quoted(a), quoted(b)) for a, b in pairs), *flags)


def perl_bytes(script, *flags):
    return ["perl", *flags, "-pe", script]


def perl_text(script, *flags):
    return ["perl", "-CSD", *flags, "-pe", "use utf8; " + script]


def python(body):
    """`body` works on the text `t`."""
    return [sys.executable, "-c", "import re, sys\nt = sys.stdin.buffer.read().decode()\n" + body +
            "\nsys.stdout.buffer.write(t.encode())"]


def python_literals(pairs):
    return "for a, b in %s: t = t.replace(a, b)\n" % ascii(tuple(pairs))


around_tab = [(f, "\t") for s in " \u00a0" for f in (s + "\t" + s, s + "\t", "\t" + s)]
around_break = [(f, b) for s in " \u00a0" for b in BREAKS for f in (s + b + s, s + b, b + s)]
before_dot = [(s + d, d) for s in " \u00a0" for d in DOTS]
bullet_rows = ([(b + " ", "") for b in BULLETS[:-1]] + [(b, "") for b in BULLETS[:-1]] +
               [(BULLETS[-1] + " ", ""), (BULLETS[-1], "")] +
               [(b + o + "\t", b + "\t") for b in BREAKS for o in ("o", "o ")])

SCAN = r"s/<[^>]*(?:>|\z)//g"
TAGS = (r"s{<script\b.*?</script>}{}gis; "
        r"""s{(?s:<!--.*?-->)|<\?.*\?>|<[/!\$]?[-a-zA-Z0-9:]+\b(?:[^"'>]++|"[^"]*"|'[^']*')*+>}{}g""")
OPENER = r"(?:^|\s|--|&nbsp;|&[mn]dash;|&#821[12];|&#x201[34];)"
STRAIGHT = (r"s/\A'(?=\p{P}\B)/”/; s/" + OPENER + r"\K'(?=\w)/“/gi; "
            r"s/([^ \t\r\n\[{(-])?'/$1”/g; s/'/“/g")
ALL_STYLES = "s/" + OPENER + r"\K['‘‚‹](?=\w)/“/gi; tr/‘’‚‹›'/”/"

JOIN = r"""
MARKS = set('.?!\u2026\u00b7\u3002\u22c5\u30fb\u1427\u2024_:')
def case(c): return (c.lower() != c) - (c.upper() != c)
def begins(line): return case(line.lstrip(' ')[:1] or ' ') > 0
def ends(line, comma=False):
    cut = line.rstrip(' ')
    if not cut: return False
    kind = case(cut[-1])
    if kind > 0: return len(cut) == 1 or cut[-2] != ' '
    if kind == 0 and len(cut) > 1 and (cut[-2] in MARKS or case(cut[-2]) > 0): return True
    return cut[-1] in MARKS or comma and line[-1] == ','
spaced = ' ' in t
t = t.replace('\r\n', '\n').replace('\r', '\n')
for _ in range(2):
    done, pending, going = [], [], False
    for line in filter(None, t.split('\n')):
        if ends(line):
            if pending:
                before = ' '.join(pending)
                apart = spaced and begins(line) and ends(before, True)
                line = before + ('\n' if apart else ' ') + line
                pending = []
            done.append(line)
        elif going and begins(line) and pending:
            going = False
            done.append(' '.join(pending + [line]))
            pending = []
        else:
            going = not (going and begins(line))
            pending.append(line)
    if pending: done.append(' '.join(pending))
    t = '\n'.join(done)
t = re.sub('(?<=[A-z])- ', '', t)
"""
LITERAL_QUOTES = (("‘", "“"), ("’", "”"))
FIRST_START = ("t = t.strip()\n" + python_literals(bullet_rows) + JOIN +
               python_literals(LITERAL_QUOTES + ((">", ""),)) +
               "t = re.sub(' {2,}', ' ', t); t = re.sub('\\u00a0{2,}', '\\u00a0', t)\n" +
               python_literals(before_dot + around_tab + around_break) +
               "t = re.sub('\\n+', '\\n', t.replace('\\r\\n', '\\n').replace('\\r', '\\n'))\n")
COUNTS = (r"counts = (len(t.encode('utf-16-le')) // 2, t.count(' ') + t.count('\u00a0'), "
          r"len(re.findall(r'\w+(?:[\'’.]\w+)*', t)), len(t.splitlines()))" "\n")
# The other tools do less here: they join no lines and count nothing.
FIRST_START_SED = sed(
    "s/(%s) ?//g;s/\\r$//;s/‘/“/g;s/’/”/g;s/>//g;s/  +/ /g;s/ (\\.|%s)/\\1/g;s/ ?\\t ?/\\t/g;s/^ //;"
    "s/ $//;/^$/d" % ("|".join(BULLETS), "|".join(DOTS[1:])))

first_start = dict.fromkeys(
    """udChangeMultipleSpacesToSingleSpace udRemoveSpaceBeforeDot udRemoveSpaceBeforeAfterTab
    udRemoveSpaceBeforeAfterReturn udChangeWrongInsertedReturnsTo udChangeReturnsTo
    udRemoveSpacesBeforeAndAfterText udChangeQuotes udRemoveBullets udRemoveReplyQuotes
    udChangeWrongInsertedReturnsOption udChangeReturnsOption""".split(), 1)
slots = {}
for number, (find, replacement) in enumerate(SLOTS, 1):
    slots.update({"udChangeProperty%d" % number: 1,
                  "udChangeProperty%dChangeTextField" % number: find,
                  "udChangeProperty%dToTextField" % number: replacement})

# What people try: lines that are wholly in windows-1252, one layer. It tries one charset of ten and
# weighs nothing, so that it may be faster.
REENCODE = """def again(line):
    try: return line.encode('cp1252').decode()
    except ValueError: return line
t = '\\n'.join(map(again, t.split('\\n')))"""

CLEAN = "{nerlo} clean --locale en_US --options {options}"


def row(name, title, operation, rivals, options=None, corpus="prose", memory=KEEPS, command=None):
    command = command or CLEAN + ("" if operation is None else " --operation %d" % operation)
    return Row(name, title, command, options or {}, corpus, memory, rivals)


ROWS = [
    row("tabs", "remove tabs", 2, [tool("tr -d", tr("-d", "\\t"), 1.4, .7)]),
    row("reply-marks", "remove reply marks", 10, [tool("tr -d", tr("-d", ">"), 1.4, .7)]),
    row("spaces", "collapse spaces", 16, [
        tool("perl", perl_bytes(r"tr/ //s; s/(?:\xc2\xa0){2,}/\xc2\xa0/g"), .25, .15),
        tool("tr -s", tr("-s", " "), .5)]),
    row("white-space", "white space to one space", 3, [
        tool("Python", python(r"t = re.sub(r'\s+', ' ', t)"), .2),
        tool("tr -s", tr("-s", "[:space:]", " "), .9, .5)]),
    row("dots", "space before dots", 19, [
        tool("sed", sed("s/ (\\.|%s)/\\1/g;s/\u00a0(\\.|%s)/\\1/g" % (("|".join(DOTS[1:]),) * 2)), .3, .15)]),
    row("around-tabs", "spaces around tabs", 20, [tool("perl", perl_bytes(r"s/ ?\t ?/\t/g"), .5, .3)]),
    row("around-breaks", "spaces around breaks", 21, [
        tool("sed -z", sed_literals(around_break, "-z"), .1, .06)]),
    row("break-runs", "runs of breaks", 4, [
        tool("tr, tr", ["sh", "-c", r"tr -d '\r' | tr -s '\n'"], .8, .5, by="cpu")],
        {"udChangeReturnsOption": 1}),
    row("bullets", "bullets", 18, [
        tool("sd", ["sd", "[%s] ?" % BULLETS, ""], 1.3, .8),
        tool("sed", sed("s/(%s) ?//g" % "|".join(BULLETS)), .7)]),
    row("dashes", "all hyphens and dashes", 34, [
        tool("perl", perl_text(r"s/[%s](?: \r\n| \r| \n| |)//g" % DASHES, "-0777"), .2, .1)],
        {"udRemoveHyphensAll": 1}),
    row("tags-scan", "tags, scan", 11, [tool("perl", perl_bytes(SCAN, "-0777"), .3, .15)], corpus="html"),
    row("tags-pattern", "tags, pattern", 11, [tool("perl", perl_bytes(TAGS, "-0777"), .2, .1)],
        {"udRemoveHTMLTagsJS": 1}, corpus="html"),
    row("lower", "lower case, mixed scripts", 6, [tool("Python", python("t = t.lower()"), .35, .2)],
        {"udChangeCaseOption": 2}, "mixed", LENGTHENS),
    row("upper", "upper case, mixed scripts", 6, [tool("Python", python("t = t.upper()"), .45, .25)],
        {"udChangeCaseOption": 3}, "mixed", LENGTHENS),
    row("capitalized", "capitalized", 6, [tool("Python", python("t = t.title()"), .7, .4)],
        {"udChangeCaseOption": 1}, memory=LENGTHENS),
    row("smart-capitals", "smart capitals", 6, [
        tool("Python", python("t = re.sub(r'((?:^|[.?!…])\\s+)([a-zß-ÿ])', "
                              "lambda m: m[1] + m[2].upper(), t)"), .3, .15)],
        {"udChangeCaseOption": 0}, memory=LENGTHENS),
    row("quotes", "quotes, style 0 to 0", 7, [tool("sed", sed_literals(LITERAL_QUOTES), .45, .3)]),
    row("quotes-straight", "quotes, straight to 0", 7, [tool("perl", perl_text(STRAIGHT, "-0777"), .25, .15)],
        {"udChangeQuotesSingleOption": 9}, memory=LENGTHENS),
    row("quotes-all", "quotes, all styles", 7, [tool("perl", perl_text(ALL_STYLES, "-0777"), .2, .1)],
        {"udChangeQuotesAll": 1}, memory=LENGTHENS),
    row("remove-quotes", "remove all single quotes", 8, [
        tool("Python", python(python_literals((mark, "") for mark in SINGLE_MARKS)), .15, .1)],
        {"udRemoveSingleQuotesAll": 1}),
    row("slots", "ten slots in one pipeline", None, [
        tool("perl", perl_bytes("; ".join("s/%s/%s/g" % pair for pair in SLOTS)), .5, .3)],
        slots, memory=LENGTHENS),
    row("ellipsis", "dots to ellipsis", 22, [tool("sd", ["sd", "-s", "...", "…"], 1.3, .8)]),
    row("pattern", "user pattern [0-9]+ deleted", 12, [tool("sd", ["sd", "[0-9]+", ""], 1.5, 1.0)],
        {"udInsertYourPatternTextField": "[0-9]+"}, memory=LENGTHENS),
    row("sort-case", "sort, case ignored", 23, [tool("sort -f", ["sort", "-f"], .25, .15, by="cpu", utf8=True)],
        {"udSortOption": 0}, "lines", SORTS),
    row("sort-locale", "sort, locale", 23, [tool("sort", ["sort"], .4, .25, by="cpu", utf8=True)],
        {"udSortOption": 2}, "lines", SORTS),
    row("sort-units", "sort, code units", 23, [tool("LC_ALL=C sort", ["sort"], .7, .4, by="cpu")],
        {"udSortOption": 4}, "lines", SORTS),
    row("duplicates", "duplicate lines", 24, [
        tool("Python", python("t = '\\n'.join(dict.fromkeys(t.split('\\n')))"), .5, .3)],
        corpus="lines", memory=DISTINCT),
    row("counts", "the four counts", 25, [tool("wc -mlw", ["wc", "-mlw"], .55, .35, utf8=True)],
        command="{nerlo} count --locale en_US"),
    row("join", "join lines", 33, [
        tool("Python", python(JOIN), .15),
        tool("gawk", ["sh", "-c", "tr -d '\\r' | gawk 'BEGIN { RS = \"\" } "
                      "{ gsub(/\\n/, \" \"); print $0 \"\\n\" }'"], .6, .3)],
        {"udChangeWrongInsertedReturnsOption": 1}),
    row("encoding", "wrong encoding", 39, [tool("Python", python(REENCODE), 4, 2, by="cpu")], corpus="misread", memory=LENGTHENS),
    row("first-start", "first-start pipeline", None, [
        tool("Python", python(FIRST_START), .05), tool("sed", FIRST_START_SED, .3, .15)], first_start),
    row("first-start-counts", "first-start pipeline, then counts", None, [
        tool("Python", python(FIRST_START + COUNTS), .05), tool("sed, no counts", FIRST_START_SED, .3, .15)],
        first_start, command=CLEAN + " | {nerlo} count --locale en_US"),
]


def pattern(name, title, find, perl, replace="", text=False):
    """A rule of the user's. Perl reads bytes, which is faster, where its answer is the same."""
    rule = {"checkbox": True, "find": find, "replace": "!{delete}" + replace}
    script = "s/%s/%s/g" % (perl or find.replace("/", "\\/"), replace)
    return row("pattern-" + name, title, 37,
               [tool("perl", perl_text(script) if text else perl_bytes(script), 1, .5, by="cpu")],
               {"sFindAndReplaceItemsProfile": [rule]}, "everyday", LENGTHENS)


PATTERNS = [
    pattern("email", "e-mail", r"[\w.+-]+@[\w-]+\.[\w.-]+", r"[\w.+-]+\@[\w-]+\.[\w.-]+", text=True),
    pattern("url", "web address", r"https?://[^\s\"<>]+", None, text=True),
    pattern("numbers", "numbers", "[0-9]+", None),
    pattern("dates", "dates", r"\d{4}-\d{2}-\d{2}", None),
    pattern("trailing", "trailing blanks", r"(?m)[ \t]+$", r"[ \t]+(?=\r?\n)"),
    pattern("double", "double words", r"\b(\w+) \1\b", None, "$1", text=True),
    pattern("ing", "words in -ing", r"\b[a-z]+ing\b", None, text=True),
    pattern("lines", "lines with a word", ".*error.*", r"[^\r\n]*error[^\r\n]*"),
    pattern("quoted", "quoted", r"\"[^\"\r\n]*\"", None),
    pattern("tags", "tags", "</?[a-z][^>]*>", None),
    pattern("colours", "hexadecimal colours", r"#[0-9a-fA-F]{6}\b", None),
    pattern("addresses", "IP addresses", r"\b(?:\d{1,3}\.){3}\d{1,3}\b", None),
    pattern("comma", "decimal comma", r"(\d+),(\d+)", None, "$1.$2"),
    pattern("phone", "phone numbers", r"\+?\d{1,3}[ -]\d{2,4}[ -]\d{4,}", None),
    pattern("camel", "camelCase", "([a-z])([A-Z])", None, "$1 $2"),
    pattern("footnotes", "footnote marks", r"\[\d+\]", None),
    pattern("prompts", "shell prompts", r"(?m)^\$ ", r"^\$ "),
    pattern("word", "a word in any case", r"(?i)\bdraft\b", None),
    pattern("leading", "leading numbers", r"(?m)^\d+[.)] ", r"^\d+[.)] "),
    pattern("marks", "repeated marks", r"([!?])\1+", None, "$1"),
]

# Ready profiles in which structure is found; no tool does the like, so that only their growth is measured.
READY = [row(profile, "profile " + profile, None, (), command="{nerlo} clean --profile " + profile)
         for profile in ("mail", "terminal")]

# By a pipe that the text comes through: the rows, with the names of their tools. The goal is the tool's CPU time.
STREAMS = (("tabs", "tr -d"), ("reply-marks", "tr -d"), ("spaces", "tr -s"), ("white-space", "tr -s"),
           ("break-runs", "tr, tr"))
STREAM_GOAL = .7
# Operations that an endless text goes through, by what makes it, and the most memory in megabytes.
THREE_LOCAL = "--operation collapse-spaces --operation remove-reply-marks --operation %s"
ENDLESS = (("prose, on bytes", "while cat {prose}; do :; done", THREE_LOCAL % "remove-tabs"),
           ("prose, decoded", "while cat {prose}; do :; done", THREE_LOCAL % "change-case --set udChangeCaseOption=2"),
           ("a letter a line", "yes", THREE_LOCAL % "remove-space-around-return"),
           ("empty lines", "yes ''", THREE_LOCAL % "change-returns"))
ENDLESS_PEAK = 20
