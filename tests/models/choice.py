"""The controls for a choice, and of these combo box and list box."""

from model import step, way_of_a_value
from valued import BINDING, FIVE, Valued
from values import PLACE, Unsaid, names, written

HEAD = "DataModified WaitingForData DeviceValue OutputValue" + BINDING
TAIL = " MsgDeviceTagNotFound MsgDefault IconEnable ReadOnly DeviceType DeviceVersion RegisterType EnableControl"
RAISED = "OutputValueChange DataModifiedSetTrue imgClick imgDblClick "
LOOKS = PLACE + " BackColor ForeColor FontBold ToolTipText"
AROUND = {"img_State": "click dblclick", "Surface": "click rightclick rightclick", "mnu_Edit": "choose choose"}


def mask(bit):
    return 1 << bit if 0 <= bit <= 30 else 0


class Choice(Valued):
    DERIVED = ("OutputValue", "InvalidValue")
    OWN_EFFECTS = {"CFail": "status colors"}
    VALUES = {**names("DeviceValue ModifiedValue EnumValue EnumEntryValue", (0, 1, 2, 2, 5, -6)),
              "OtherUserValue": (0, 7, -3), "ReadOnly": (False, False, False, True)}
    OFTEN = ("DeviceValue", "DeviceValue", "ModifiedValue", "ModifiedValue", "ReadOnly", "DataModified", "DataChanged")

    def take(self, value, from_device):
        if from_device:
            self.reference = self.meant(value)
        self.show(self.meant(value))
        yield

    def meant(self, value):
        return value

    def loaded(self):
        self.reference = self["DeviceValue"]
        self.colors()
        self.enabled()
        self.layout()

    def layout(self):
        face, width, height = self.FACE, self["Surface.Width"], self["Surface.Height"]
        self[face + ".Width"] = width - 415 if width >= 700 else 285
        self["img_State.Left"] = self[face + ".Left"] + self[face + ".Width"] + 100
        self.layout_height(height)


class ComboBox(Choice):
    CLASS, FACE, SHOWN = "ctx_ZorComboBox", "cbo_ComboBox", ("cbo_ComboBox",)
    STORED = "CFail InvalidValue " + HEAD + " MsgInvalidValue" + TAIL
    RUNTIME = "MessageHeader ModifiedValue OtherUserValue SelectedText"
    READ = ("SelectedText",)
    DEFAULTS = {"MsgInvalidValue": "Invalid Value from Device"}
    FRESH = {"MsgInvalidValue": "Invalid Entry"}
    EVENTS = RAISED + "InvalidValueSetTrue ComboClick ComboDropDown ComboGotFocus ComboKeyDown ComboKeyPress ComboKeyUp" \
                      " ComboLostFocus ComboValidate"
    MESSAGES = (*FIVE[:4], "MsgInvalidValue", FIVE[4])
    PREFIX = {"cbo_ComboBox": "Combo", "img_State": "img"}
    WIDGETS = {"cbo_ComboBox": LOOKS + " Text Locked ListCount ListIndex"}
    ACTIONS = {"cbo_ComboBox": "choose choose focus blur dropdown key key", **AROUND}
    KEYS = (40, 38, 36, 35, 32, 112)

    def created(self):
        super().created()
        self.entries, self.current = [], -1

    def selected(self):
        return self.entries[self.current][0] if self.current >= 0 else ""

    READ_AS = {**Choice.READ_AS, "SelectedText": selected, "cbo_ComboBox.Text": selected,
               "cbo_ComboBox.ListCount": lambda self: len(self.entries), "cbo_ComboBox.ListIndex": lambda self: self.current}

    def layout_height(self, height):
        self["Surface.Height"] = 315

    def invalid_rows(self):
        text = self["MsgInvalidValue"]
        yield "", self["InvalidValue"], text, 2, text + "\r\n", "exclamation"

    # --- Entries

    def find(self, value):
        return next((i for i, (_, own) in enumerate(self.entries) if own == value), None)

    def AddEnumEntry(self, text, value):
        self.entries.append((text, value))
        self.current = len(self.entries) - 1
        self["OutputValue"] = value

    def ClearEnumList(self):
        self.entries, self.current = [], -1

    def RemoveEnumEntry(self, value):
        at = self.find(value)
        if at is not None:
            del self.entries[at]
            self.current = -1 if at == self.current else self.current - (at < self.current)

    def GetEnumEntryText(self, value):
        at = self.find(value)
        return "ERROR" if at is None else self.entries[at][0]

    def GetEnumEntryValue(self, text):
        return next((value for own, value in self.entries if own == text), "ERROR")

    def GetEnumEntries(self):
        return [text for text, _ in self.entries] or ["ERROR"]

    def GetEnumEntryValueArray(self):
        return [value for _, value in self.entries] or ["ERROR"]

    def GetEnumEntryCount(self):
        return len(self.entries)

    def calls(self, random):
        value, text = random.choice(self.VALUES["DeviceValue"]), random.choice(self.TEXTS)
        add = ("AddEnumEntry", text, value)
        return (add, add, add, ("RemoveEnumEntry", value), random.choice((
            ("ClearEnumList",), ("GetEnumEntryText", value), ("GetEnumEntryValue", text), ("GetEnumEntries",),
            ("GetEnumEntryValueArray",), ("GetEnumEntryCount",))))

    # --- Values

    def show(self, value):
        """Selects the first entry that carries a value, if there are entries."""
        if not self.entries:
            return
        at = self.find(value)
        self["InvalidValue"] = at is None
        if at is None:
            self.emit("InvalidValueSetTrue")
        elif self.current != at:
            self.pick(at)

    def chosen(self):
        overtaken = self.under_way()
        value = self.entries[self.current][1]
        self.modify(value != self.reference)
        if not overtaken():
            self.assign(self.entries[self.current][1] if self.current >= 0 else value)
        self.colors()
        self.emit("ComboClick")


    @way_of_a_value
    def undo(self):
        if not self["DataModified"]:
            return
        if self.find(self.reference) == self.current != -1:
            self["InvalidValue"] = False
            self.chosen()
        else:
            self.show(self.reference)
        yield
        self.assign(self.reference)
        yield
        self.status()

    # --- The operator

    def do_do(self, widget, action, *arguments):
        if action == "choose" and widget != "mnu_Edit" and not 0 <= arguments[0] < len(self.entries):
            return self.out.append("error 9")
        return super().do_do(widget, action, *arguments)

    WRITES = ("choose", "dropdown")

    def choose(self, widget, index):
        self.dropdown(widget)
        if self.able(widget) and not self.locked() and index < len(self.entries):
            self.pick(index)

    def pick(self, index):
        self.current = index
        self.chosen()

    def dropdown(self, widget="cbo_ComboBox"):
        if not self.locked():
            self.emit("ComboDropDown")

    def struck(self, widget, code, press):
        if press == 32:
            self.dropdown()
        last = len(self.entries) - 1
        to = {40: min(self.current + 1, last), 38: self.current - (self.current > 0), 36: 0, 35: last}.get(code, self.current)
        if not self.locked() and last >= 0 and to != self.current:
            self.pick(to)

    def arguments(self, random, widget, action):
        if action == "choose" and widget == "cbo_ComboBox":
            return (random.randrange(len(self.entries)) if self.entries else 0,)
        return super().arguments(random, widget, action)


class ListBox(Choice):
    CLASS, FACE, SHOWN = "ctx_ZorListBox", "lst_ListBox", ("lst_ListBox",)
    STORED = ComboBox.STORED
    RUNTIME = "MessageHeader ModifiedValue OtherUserValue SelCount"
    READ = ("SelCount",)
    DEFAULTS, FRESH, MESSAGES = ComboBox.DEFAULTS, ComboBox.FRESH, ComboBox.MESSAGES
    EVENTS = RAISED + "ListClick ListDblClick ListGotFocus ListKeyDown ListKeyPress ListKeyUp ListLostFocus ListMouseDown" \
                      " ListMouseUp ListValidate"
    PREFIX = {"lst_ListBox": "List", "img_State": "img"}
    WIDGETS = {"lst_ListBox": LOOKS + " ListCount ListIndex"}
    ACTIONS = {"lst_ListBox": "toggle toggle toggle focus blur key key click dblclick rightclick", **AROUND}
    KEYS = (40, 38, 36, 35, 32, 32, 112)
    UNHANDLED = ("ListMouseDown", "ListMouseUp")  # which entry is current between the two is the platform's
    VALUES = {**Choice.VALUES, **names("DeviceValue ModifiedValue", (0, 1, 9, 0x40000008, -1, 6))}

    def created(self):
        super().created()
        self.entries, self.current, self.marks = [], -1, []

    READ_AS = {**Choice.READ_AS, "SelCount": lambda self: sum(self.marks),
               "lst_ListBox.ListCount": lambda self: len(self.entries), "lst_ListBox.ListIndex": lambda self: self.current}

    def seen(self):
        marks = " ".join(f"c.lst_ListBox.Selected({i})" for i in range(len(self.entries)))
        return [*([("get " + marks, [" ".join(map(written, self.marks))])] if marks else []), *super().seen()]

    invalid_rows = ComboBox.invalid_rows

    def layout_height(self, height):
        self["lst_ListBox.Height"] = 285 if height < 315 else height
        self["img_State.Top"] = 25 if height < 315 else round((height - 315) / 2) + 25

    # --- Entries

    find = ComboBox.find
    GetBitFieldEntryText, GetBitFieldEntryValue = ComboBox.GetEnumEntryText, ComboBox.GetEnumEntryValue
    GetBitFieldEntries, GetBitFieldEntryValueArray = ComboBox.GetEnumEntries, ComboBox.GetEnumEntryValueArray
    GetBitFieldEntryCount = ComboBox.GetEnumEntryCount

    def AddBitFieldEntry(self, text, bit):
        self.entries.append((text, bit))
        self.marks.append(False)

    def ClearBitFieldList(self):
        self.entries, self.current, self.marks = [], -1, []

    def RemoveBitFieldEntry(self, bit):
        at = self.find(bit)
        if at is not None:
            del self.entries[at], self.marks[at]
            self.current = -1 if at == self.current else self.current - (at < self.current)

    def calls(self, random):
        bit, text = random.choice((0, 0, 3, 3, 30, -1, 31)), random.choice(self.TEXTS)
        if len(self.entries) > 3:
            return ("ClearBitFieldList",), ("RemoveBitFieldEntry", bit)
        add = ("AddBitFieldEntry", text, bit)
        return (add, add, add, ("RemoveBitFieldEntry", bit), random.choice((
            ("ClearBitFieldList",), ("GetBitFieldEntryText", bit), ("GetBitFieldEntryValue", text), ("GetBitFieldEntries",),
            ("GetBitFieldEntryValueArray",), ("GetBitFieldEntryCount",))))

    # --- Values

    @step
    def show(self, value):
        """Marks the list as a value says; each mark that changes is a click, and the way back to the first entry."""
        for i in range(len(self.entries)):
            if i < len(self.marks) and self.marks[i] != bool(value & mask(self.entries[i][1])):
                self.marks[i] = not self.marks[i]
                self.current = i
                if not self.locked():
                    self.clicked_entry()
                    yield
        if self.entries and self.current != 0:
            self.current = 0
            if not self.locked():
                self.clicked_entry()

    def clicked_entry(self):
        overtaken = self.under_way()
        if self.current < 0:
            return
        bit = mask(self.entries[self.current][1])
        marked = self.marks[self.current]
        self.assign(self["OutputValue"] | bit if marked else self["OutputValue"] & ~bit)
        if not overtaken():
            self.modify(self["OutputValue"] != self.reference)
        self.colors()
        self.emit("ListClick")

    def take(self, value, from_device):
        if from_device:
            self["OutputValue"] = value
        return super().take(value, from_device)

    def taken(self):
        self["DataModified"] = self["OutputValue"] != self.reference


    @way_of_a_value
    def undo(self):
        if self["DataModified"]:
            self.show(self.reference)
            yield
            self.assign(self.reference)
            yield
            self["DataModified"] = False
            self.colors()

    # --- The operator

    def at(self, widget):
        if widget != "lst_ListBox":
            return super().at(widget)
        return (450, 120 + 270 * max(self.current, 0)) if self.entries else (0, 0)

    def do_do(self, widget, action, *arguments):
        if action == "toggle" and not 0 <= arguments[0] < len(self.entries):
            return self.out.append("error 9")
        return super().do_do(widget, action, *arguments)

    def toggle(self, widget, index):
        self.point = 135, 120 + 270 * index
        # Who heard of the focus may have removed the entry.
        if index < len(self.entries) and self.press(widget) and index < len(self.entries):
            self.switch(index)

    def switch(self, index):
        if not self.locked():
            self.marks[index] = not self.marks[index]
            self.current = index
            self.clicked_entry()
        else:
            self.show(self["OutputValue"])

    def clicked(self, widget):
        if widget != "lst_ListBox":
            super().clicked(widget)
        elif self.entries:
            self.go(max(self.current, 0))

    def go(self, index):
        self.current = index
        if self.locked():
            self.show(self["OutputValue"])
        else:
            self.clicked_entry()

    def struck(self, widget, code, press):
        if press == 32 and self.current >= 0:
            self.switch(self.current)
        last = len(self.entries) - 1
        to = {40: min(self.current + 1, last), 38: max(self.current - 1, 0), 36: 0, 35: last}.get(code, self.current)
        if self.current < 0 and code in (40, 38, 36, 35):
            to = min(last, 0)  # the first entry, whichever way
        if last >= 0 and to != self.current:
            self.go(to)

    def scrolls(self):
        return self["lst_ListBox.Height"] < 120 + 270 * len(self.entries) or self["lst_ListBox.Width"] < 700

    def button(self, widget, which, end):
        if widget == "lst_ListBox" and self.scrolls():
            raise Unsaid  # each platform clicks it somewhere else
        return super().button(widget, which, end)

    def random_do(self, random):
        step = super().random_do(random)
        return ("do", "lst_ListBox", "key", 32) if self.scrolls() and step[1] == "lst_ListBox" and step[2] != "blur" else step

    def arguments(self, random, widget, action):
        if action == "toggle":
            return (random.randrange(len(self.entries)) if self.entries else 0,)
        return super().arguments(random, widget, action)


CONTROLS = {"combo_box": ComboBox, "list_box": ListBox}
