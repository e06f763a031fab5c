"""The keyword tree of a parsed deck."""


def _name_key(name):
    return name.replace(" ", "").lower()


class Keyword:
    """One keyword of the deck.

    ``name``
        the keyword's name as the library knows it: lower case without
        blanks, e.g. ``"node"`` or ``"nodeoutput"`` for *NODE OUTPUT.
    ``parameters``
        a dict from parameter name (lower case, no blanks) to its value:
        int, float, bool, str, or None for a parameter written without a
        value. Insertion order is the library's order.
    ``data``
        a :class:`fedeck.Data` with the data lines, or None when the
        keyword came from an encrypted file, whose data is never given out.
    ``suboptions``
        the keywords this one holds (when the deck was organized), in order.
    ``comments``
        a tuple of the comment lines that stood before the keyword line.
    """

    __slots__ = ("name", "parameters", "data", "suboptions", "comments")

    def __init__(self, name="", parameters=None, data=None, suboptions=None, comments=()):
        self.name = name
        self.parameters = {} if parameters is None else parameters
        self.data = data
        self.suboptions = [] if suboptions is None else suboptions
        self.comments = comments

    def walk(self):
        """This keyword, then each suboption's walk, depth first."""
        yield self
        for suboption in self.suboptions:
            yield from suboption.walk()

    def __repr__(self):
        return "Keyword(%r, parameters=%r, data=%r, suboptions=%d)" % (
            self.name, self.parameters, self.data, len(self.suboptions))


class Deck:
    """A parsed deck.

    ``keywords``
        the top-level keywords in deck order (each a :class:`Keyword`).
    ``includes``
        a tuple of the files that were read besides the deck: include files
        and data files.
    ``missing_includes``
        a tuple of the include and data files that were named but not found.
    """

    __slots__ = ("keywords", "includes", "missing_includes")

    def __init__(self):
        self.keywords = []
        self.includes = ()
        self.missing_includes = ()

    def walk(self):
        """Every keyword of the tree, depth first, in deck order."""
        for keyword in self.keywords:
            yield from keyword.walk()

    def find(self, name):
        """The keywords of the whole tree named ``name``, in deck order.
        Case and blanks don't count: "NODE OUTPUT" finds "nodeoutput"."""
        wanted = _name_key(name)
        return [keyword for keyword in self.walk() if _name_key(keyword.name) == wanted]

    def __repr__(self):
        return "Deck(keywords=%d, includes=%d, missing_includes=%d)" % (
            len(self.keywords), len(self.includes), len(self.missing_includes))
