"""What all nine controls have in common, written from the rules: properties, states, handlers, the operator's mouse."""

from steps import Steps
from units import Overflow
from values import (BEGIN, DEFAULTS, DESIGNED, EFFECTS, KEYS, PLACE, SILENT, Colour, Unsaid, places, type_index,
                    version_fails, written)


def in_order(newer):
    """Of a value's way: at each `yield` it ends if a newer value has set out meanwhile, or the control is gone."""
    def decorate(steps):
        def way(self, *arguments):
            self.turn += newer
            overtaken = self.under_way()
            for _ in steps(self, *arguments):
                if overtaken():
                    break
        return way
    return decorate


way_of_a_value, step = in_order(1), in_order(0)


class Model(Steps):
    """A control. `self[...]` is a property by its name or a widget's aspect as `widget.aspect`."""

    STORED = RUNTIME = EVENTS = ""
    FRESH, OWN_EFFECTS, MESSAGES, OTHER_MESSAGE = {}, {}, (), "ERROR_RETURNED"
    DERIVED = ()         # refused at run time, ignored at design time
    READ = ()            # refused always
    READ_AS = {}         # what is kept under another name, or reckoned
    PREFIX = {}          # a widget's events begin so
    AT = {}              # where the operator points in a widget
    FACE = ""            # the widget that bears the tooltip
    WIDGETS = {}         # aspects that are compared
    MENU_OVER = ("Surface",)

    def __init__(self, form):
        self.form, self.handlers, self.out, self.depth, self.thrown = form, {}, [], 0, None
        self.stored = self.STORED.split()
        self.raised = set(self.EVENTS.split())
        widgets = {"img_State": PLACE + " Picture", "Surface": "Width Height BackColor", **self.WIDGETS}
        self.aspects = [f"{widget}.{aspect}" for widget, listed in widgets.items() for aspect in listed.split()]
        self.properties = self.stored + self.RUNTIME.split()
        # A colour looks like a comment beside other words.
        colours = [name for name in self.aspects if name.endswith("Color")]
        plain = [name for name in self.aspects if name not in colours]
        self.groups = [("get " + " ".join("c." + name for name in group), group)
                       for group in (self.properties, plain, *([name] for name in colours))]
        self.forget()
        self.create()
        self.initialise()
        self.forget()

    def __getitem__(self, name):
        return self.s[name]

    def __setitem__(self, name, value):
        self.s[name] = value

    # --- Life

    def create(self):
        self.s = {**{name: self.DEFAULTS.get(name, DEFAULTS.get(name)) for name in self.stored}, "MessageHeader": "Zor",
                  **{name: BEGIN[name.split(".")[1]] for name in self.aspects if name.split(".")[1] in BEGIN},
                  **self.form.designed(self.CLASS, [name for name in self.aspects if name.split(".")[1] in DESIGNED]),
                  **places(self.CLASS)}
        self.index, self.dead, self.focused, self.turn = 0, False, None, 0
        self["img_State.Visible"], self["img_State.Picture"] = False, 0
        self.created()

    DEFAULTS = {}

    def created(self):
        pass

    def initialise(self):
        mode, self.form.usermode = self.form.usermode, False
        for name, value in {name: self.FRESH.get(name, self[name]) for name in self.stored}.items():
            self.put(name, value)
        self.form.usermode = mode

    def forget(self):
        self.events, self.notices, self.out, self.form.boxes = [], [], [], []

    def bag(self):
        default = {**DEFAULTS, **self.DEFAULTS}
        return [f"{KEYS.get(name, name)}={written(self.kept(name))}" for name in self.stored
                if self.kept(name) != default[name] or name in self.ALWAYS]

    def kept(self, name):
        """What is stored of a property."""
        return self.look(name)

    ALWAYS = ()

    def load(self, values):
        self.create()
        for name, value in values.items():
            self[name] = value
        self.loaded()

    def look(self, name):
        read = self.READ_AS.get(name, name)
        return self.s[read] if isinstance(read, str) else read(self)

    # --- What the host does

    def put(self, name, value):
        if name in self.DERIVED or name in self.READ:
            return self.out.append("error 383") if self.form.usermode or name in self.READ else None
        self[name] = value
        if name not in SILENT and name not in self.OWN_SILENT:
            self.notices.append(name)
        getattr(self, "put_" + name, lambda: None)()
        for effect in self.OWN_EFFECTS.get(name, EFFECTS.get(name, "")).split():
            getattr(self, effect)()

    OWN_SILENT = ()

    def get(self, *names):
        self.out.append(self.line(self.now(), names))

    def call(self, method, *arguments):
        answer = getattr(self, method)(*arguments)
        if answer is not None:
            self.out.append(written(answer))

    def fi_GetMaxMessage(self):
        return len(self.MESSAGES)

    def fc_GetMessageID(self, number):
        known = 0 < number <= len(self.MESSAGES)
        return "MSG_" + self.MESSAGES[number - 1][3:].upper() if known else self.OTHER_MESSAGE

    def fb_SetMessage(self, number, text):
        if not 0 < number <= len(self.MESSAGES):
            return False
        self[self.MESSAGES[number - 1]] = text
        return True

    def s_ChangeBackColor(self, colour):
        shown = colour if isinstance(colour, Colour) else Colour(f"#{colour:06X}")
        for widget in self.COLOURED:
            self[widget + ".BackColor"] = shown
        return self.coloured(shown)

    COLOURED = ("Surface",)

    def coloured(self, shown):
        pass

    # --- Events

    def emit(self, event, **arguments):
        """Tells the host; answers the arguments as its handlers leave them."""
        if event not in self.raised or self.dead:
            return arguments
        self.events.append(event + (f"({','.join(written(v) for v in arguments.values())})" if arguments else ""))
        for command in list(self.handlers.get(event, ())):
            if command[0] == "set":
                arguments[command[1]] = command[2]
                continue
            if command[0] == "raise":
                self.thrown = self.thrown or command[1]
                break
            if self.depth > 3:
                raise Unsaid
            self.depth += 1
            self.perform(command)
            self.depth -= 1
        return arguments

    def perform(self, step):
        kind, *rest = step
        if self.dead:
            return self.out.append("error 424")
        try:
            return getattr(self, "do_" + kind if kind in ("do", "host", "destroy") else kind)(*rest)
        except Overflow:
            self.thrown = self.thrown if self.depth else None
            return self.out.append("error 6")

    def both(self, *steps):
        for step in steps:
            self.perform(step)

    def do_host(self, event, kind, *rest):
        if kind == "off":
            self.handlers.pop(event, None)
        else:
            self.handlers.setdefault(event, []).append(rest[0] if kind == "run" else (kind, *rest))

    def do_destroy(self):
        self.dead = True
        self.form.menu = "none"

    def size(self, width, height):
        self["Surface.Width"], self["Surface.Height"] = width, height
        self.layout()

    def under_way(self):
        turn = self.turn
        return lambda: self.dead or self.turn != turn


    # --- States

    def check_type(self):
        self.index = type_index(self["DeviceTypeSupported"], self["DeviceType"])
        self["DeviceTypeNotSupported"] = self.index < 0
        self.support()

    def check_version(self):
        if self.index >= 0:
            self["DeviceVerNotSupported"] = bool(version_fails(
                self["DeviceMinVersionSupported"], self["DeviceMaxVersionSupported"], self["DeviceVersion"], self.index))
        self.support()

    def supported(self):
        return not (self["DeviceTypeNotSupported"] or self["DeviceVerNotSupported"])

    def support(self):
        if not self.supported():
            self["img_State.Visible"] = False
        for widget in self.SHOWN:
            self[widget + ".Visible"] = self.supported() and self.wanted(widget)

    def wanted(self, widget):
        return True

    def enabled(self):
        frozen = self["WaitingForData"]
        for widget in self.SHOWN:
            self[widget + ".Enabled"] = not (frozen or self["DeviceTagNotFound"] or not self["EnableControl"])
        self["img_State.Enabled"] = not frozen

    def states(self):
        """Rows of flag, whether it shows, tooltip, picture, text of the box, its icon."""
        yield "CFail", self["CFail"], self["MsgCfail"], 1, self["MsgCfail"] + "\r\n", "critical"
        text = self["MsgDeviceTagNotFound"]
        yield "", self["DeviceTagNotFound"], text, 3, f"{text} : \r\n{self['DeviceTag']}", "information"
        text = self["MsgDataNotAvailable"]
        yield "", self["DataNotAvailable"], text, 2, text + "\r\n", "exclamation"
        if "DataChanged" in self.s:
            tooltip, text = self.changed_texts()
            yield "DataChanged", self["DataChanged"], tooltip, 2, text, "exclamation"
        yield from self.invalid_rows()


    def invalid_rows(self):
        return ()

    def state(self):
        return next((row for row in self.states() if row[1]), None)

    def status(self):
        if not self.supported():
            return
        row = self.state()
        self[self.FACE + ".ToolTipText"] = row[2] if row else self["MsgDefault"]
        if row is None:
            self["img_State.Visible"] = False
        else:
            self["img_State.Picture"] = row[3]
            self["img_State.Visible"] |= self["IconEnable"]

    def box(self, icon, text, title=None):
        self.form.boxes.append(f"{icon} {written(title or self['MessageHeader'])} {written(text)}")

    def explain(self):
        """A click on the state icon."""
        row = self.state()
        if row:
            self.box(row[5], row[4])
            if row[0] == "DataChanged":
                self["DataChanged"] = False
                self.status()
        self.emit("imgClick")

    def read_only(self):
        return self["ReadOnly"] or self["RegisterType"] == 1

    def locked(self):
        return self["CFail"] or self.read_only()

    # --- What the operator does

    def able(self, widget):
        if widget == "Surface":
            return True
        return self[widget + ".Visible"] and self[widget + ".Enabled"] and not self.dead

    FOCUSABLE = ("txt", "cbo", "lst", "chk", "opt", "sld")
    WRITES = ()

    def do_do(self, widget, action, *arguments):
        if widget == "mnu_Edit":
            return self.choose_undo()
        self.form.menu = "none"
        if action == "blur":
            return self.focused == widget and self.leave()
        if not self.able(widget):
            return self.out.append("refused " + ("disabled" if self[widget + ".Visible"] else "hidden"))
        if action in self.WRITES and self.s.get(widget + ".Locked"):
            return self.out.append("refused locked")
        if widget[:3] in self.FOCUSABLE and not self.enter(widget):
            return None
        self.point = self.at(widget)
        own = getattr(self, f"{action}_{widget[:3]}", None) or getattr(self, action)
        return own(widget, *arguments)

    def focus(self, widget):
        pass

    def enter(self, widget):
        if self.focused != widget:
            if self.focused and not self.leave():
                return False
            self.focused = widget
            self.got_focus(widget)
        return self.focused == widget and self.able(widget)

    def got_focus(self, widget):
        self.emit(self.PREFIX[widget] + "GotFocus")

    def leave(self):
        widget = self.focused
        if self.emit(self.PREFIX[widget] + "Validate", Cancel=False)["Cancel"] and self[widget + ".Visible"]:
            return False
        self.focused = None
        self.lost_focus(widget)
        return True

    def lost_focus(self, widget):
        self.emit(self.PREFIX[widget] + "LostFocus")

    def key(self, widget, code):
        self.strike(widget, code, self.character(code), self.struck)

    @staticmethod
    def character(code):
        """What a key writes by itself."""
        return code if code in (8, 13, 27, 32, 65) else 0

    def strike(self, widget, code, character, act):
        """What handlers make of a key is another key."""
        prefix = self.PREFIX[widget]
        down = self.emit(prefix + "KeyDown", KeyCode=code, Shift=0)["KeyCode"]
        if down and self.able(widget):
            character = character if down == code else self.character(down)
            press = self.emit(prefix + "KeyPress", KeyAscii=character)["KeyAscii"] if character else 0
            if (press or not character) and self.able(widget):
                act(widget, down if press == character else self.character(press), press)
        if self.able(widget):
            self.emit(prefix + "KeyUp", KeyCode=code, Shift=0)

    def at(self, widget):
        width, height = self[widget + ".Width"], self[widget + ".Height"]
        if widget in self.AT:
            return min(self.AT[widget][0], width / 2), min(self.AT[widget][1], height / 2)
        return width - 30 if widget == "txt_TextBox" else width / 2, height / 2

    def button(self, widget, which, end):
        x, y = self.point
        self.emit(self.PREFIX.get(widget, "") + end, Button=which, Shift=0, X=x, Y=y)
        return self.hears(widget)

    def hears(self, widget):
        """A click may hide what it acknowledges, and is one all the same; what a handler freezes hears nothing more."""
        return not self.dead and self.s.get(widget + ".Enabled", True)

    def press(self, widget):
        if not self.button(widget, 1, "MouseDown"):
            return False
        # A handler may make the widget narrower than where it is pressed.
        over = self.point[0] < max(15, self[widget + ".Width"])
        return self.button(widget, 1, "MouseUp") and over

    def click(self, widget):
        if self.press(widget):
            self.clicked(widget)

    def clicked(self, widget):
        self.emit(self.PREFIX.get(widget, "") + "Click")

    def click_img(self, widget):
        if self.press(widget):
            self.explain()

    def dblclick(self, widget):
        getattr(self, f"click_{widget[:3]}", self.click)(widget)
        if self.hears(widget):
            self.emit(self.PREFIX.get(widget, "") + "DblClick")
            if self.hears(widget):
                self.button(widget, 1, "MouseUp")

    def rightclick(self, widget):
        if self.button(widget, 2, "MouseDown") and self.button(widget, 2, "MouseUp") and widget in self.MENU_OVER:
            if self["EnableControl"] and not self.locked() and not self.dead:
                self.form.menu = "mnu_Edit"

    def choose_undo(self):
        if self.form.menu == "none":
            return self.out.append("refused closed")
        self.form.menu = "none"
        return self.undo()
