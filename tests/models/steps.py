"""Histories: which steps there are, what they read like on the console, and what can be seen after each."""

import itertools

from values import FACE, NOTATION, Colour, names, written


class Steps:
    # --- A step of a history, as the console is told and as it answers

    @classmethod
    def opening(cls):
        return [f"new {cls.CLASS} c", "usermode on"]

    def render(self, step):
        kind, *rest = step
        if kind == "put":
            return f"put c.{rest[0]} {written(rest[1])}"
        if kind == "get":
            return "get " + " ".join("c." + name for name in rest)
        if kind == "call":
            return " ".join([f"call c.{rest[0]}", *map(written, rest[1:])])
        if kind == "do":
            last = rest[2:] if rest[0] != "mnu_Edit" else [Colour("mnu_UndoEdit")]
            return " ".join([f"do c.{rest[0]} {rest[1]}", *map(written, last)])
        if kind == "host":
            told = {"off": "off", "raise": " ".join(["raise", *map(str, rest[2:])]), "run": "run " + (self.render(rest[2]) if rest[1] == "run" else ""),
                    "set": "=".join([str(rest[2]), written(rest[3])]) if rest[1] == "set" else ""}
            return f"host c.{rest[0]} {told[rest[1]]}"
        return {"size": "size c", "destroy": "destroy c"}[kind] + "".join(" " + written(v) for v in rest)

    def play(self, step):
        """The commands of a step with what each prints, and then all that can be seen."""
        if step[0] == "store":
            bag = self.bag()
            values = {name: self.kept(name) for name in self.stored}
            values = {name: float(written(value)) if isinstance(value, float) else value for name, value in values.items()}
            done = [("bag c", bag or []), ("destroy c", []), (" ".join(["restore", self.CLASS, "c", *bag]), [])]
            self.do_destroy()
            self.handlers = {}
            self.load(values)
            self.forget()
        elif step[0] == "form":
            self.form.tell(*step[1:])
            done = [(" ".join(step[1:]), [])]
        else:
            done = []
            for one in step[1:] if step[0] == "both" else [step]:
                done.append((self.render(one), []))
                self.out = done[-1][1]
                self.perform(one)
                if self.thrown:
                    self.out.append(f"error {self.thrown}")
                    self.thrown = None
        if self.dead:
            done.append((f"new {self.CLASS} c", []))
            boxes, self.handlers = self.form.boxes, {}
            self.create()
            self.initialise()
            self.forget()
            self.form.boxes = boxes
        return done, self.seen()

    @staticmethod
    def line(now, names):
        return " ".join([NOTATION[type(now[name])](now[name]) for name in names])

    def now(self):
        return {**self.s, **{name: self.look(name) for name in self.READ_AS}}

    def seen(self):
        now = self.now()
        seen = [(asked, [self.line(now, group)]) for asked, group in self.groups]
        seen += [("events c", [" ".join(self.events) or "-"]), ("notices c", [" ".join(self.notices) or "-"]),
                 ("boxes", self.form.boxes or ["-"]), ("menu", [self.form.menu])]
        self.events, self.notices, self.form.boxes = [], [], []
        return seen

    # --- Random steps

    TEXTS = ("", "a", "Zor", "one two", "°C \"x\"")
    VALUES = {
        "DeviceTypeSupported": ("", "A", "A, b ,C", "Zor,,B"), "DeviceType": ("", "A", " b", "c", "x"),
        **names("DeviceMinVersionSupported DeviceMaxVersionSupported", ("", "1.5", "9,,2.1", "9", "2.10,1,9", "1,2,1")),
        "DeviceVersion": ("", "1.4", "1.10", "2.3", "10", "2"), "RegisterType": (0, 0, 0, 1),
        **names("CFail DataNotAvailable DeviceTagNotFound WaitingForData ReadOnly DeviceTypeNotSupported"
                " DeviceVerNotSupported", (False, False, True)),
        **names("EnableControl IconEnable", (True, True, False)),
    }
    UNHANDLED = ()
    # What a handler may make of an event's argument.
    CHANGES = {"KeyDown": ("KeyCode", 0, 36, 40, 32), "KeyPress": ("KeyAscii", 0, 55, 32, 8), "Validate": ("Cancel", True)}
    HANDLED = ("put", "put", "put", "get", "get", "get", "call", "destroy", "raise", "raise")

    def value(self, random, name):
        pool = {**Steps.VALUES, **self.VALUES}.get(name)
        if pool is None:
            kept = self.look(name)
            pool = (True, False) if isinstance(kept, bool) else self.TEXTS if isinstance(kept, str) else (0, 1, 5)
        return random.choice(pool)

    def random_put(self, random):
        name = random.choice(self.OFTEN) if self.OFTEN and random.random() < 0.4 else random.choice(self.properties)
        return ("put", name, self.value(random, name))

    OFTEN = ()

    def random_call(self, random):
        colour = random.choice((0, 255, 0x336699, FACE))
        number = random.randint(-1, len(self.MESSAGES) + 1)
        calls = (("fi_GetMaxMessage",), ("fc_GetMessageID", number), ("fb_SetMessage", number, random.choice(self.TEXTS)),
                 ("s_ChangeBackColor", colour), *self.calls(random))
        return ("call", *random.choice(calls))

    def calls(self, random):
        return ()

    def random_do(self, random):
        widget, action = random.choice([(widget, one) for widget, listed in self.ACTIONS.items() for one in listed.split()])
        return ("do", widget, action, *self.arguments(random, widget, action))

    def arguments(self, random, widget, action):
        return (random.choice(self.KEYS),) if action == "key" else ()

    def random_size(self, random):
        return ("size", random.choice((0, 500, 690, 700, 1000, 3000, 4635)), random.choice(self.HEIGHTS))

    HEIGHTS = (0, 200, 315, 318, 400, 515, 900)

    def random_steps(self, random):
        """What comes next: mostly one step, or a handler for the length of one."""
        chance = random.random()
        if chance < 0.5:
            return [self.random_put(random)]
        if chance < 0.75:
            return [self.random_do(random)]
        if chance < 0.85:
            return [self.random_call(random)]
        if chance < 0.88:
            return [self.random_size(random)]
        if chance < 0.9:
            return [("store",)]
        if chance < 0.905:
            return [("form", "theme", random.choice(("light", "dark")))]
        if chance < 0.92:
            return [("form", "usermode", random.choice(("on", "off"))), self.random_put(random), ("form", "usermode", "on")]
        kind, heard = random.choice(self.HANDLED), sorted(self.raised.difference(self.UNHANDLED))
        if kind in ("get", "raise"):
            looks = [("host", event, "run", ("get", *group)) for event in heard for _, group in self.groups]
            ends = [("host", random.choice(heard), "run", ("destroy",))] if random.random() < 0.2 else []
            fails = [("host", event, "raise", number) for number, event in enumerate(heard, 20) if random.random() < 0.5]
            return [("both", *(looks if kind == "get" else ends + fails)), *self.few(random),
                    ("both", *(("host", event, "off") for event in heard))]
        event = random.choice(heard)
        changed = next((change for end, change in self.CHANGES.items() if event.endswith(end)), None)
        first = ("run", ("destroy",) if kind == "destroy" else getattr(self, "random_" + kind)(random))
        if changed and random.random() < 0.5:
            first = ("set", changed[0], random.choice(changed[1:]))
        return [("host", event, *first), *self.few(random), ("host", event, "off")]

    def few(self, random):
        if "mnu_Edit" in self.ACTIONS and random.random() < 0.1:
            return [("put", "ModifiedValue", self.value(random, "ModifiedValue")), ("do", "Surface", "rightclick"),
                    ("do", "mnu_Edit", "choose")]
        return itertools.chain.from_iterable(self.random_steps(random)[:1] for _ in range(3))
