"""What the numeric controls share, and the up-down."""

from model import step, way_of_a_value
from units import TYPES, UNITS, Overflow, convert, is_valid, plain, reading, whole
from valued import BINDING, FIVE, Valued
from values import PLACE, Unsaid, names

UNIT_ROWS = "UnitType DeviceValue OutputValue DeviceUnit OutputUnit"
LABEL = PLACE + " Caption"
FIELD = PLACE + " BackColor ForeColor FontBold ToolTipText Text Locked SelStart SelLength"
EDITING = (8, 46, 37, 39, 36, 35)
TEXT_EVENTS = ("DataModifiedSetTrue OutputValueChange textChange textClick textDblClick textGotFocus textKeyDown textKeyPress"
               " textKeyUp textLostFocus textMouseDown textMouseUp textValidate unitsChange unitsClick unitsDblClick imgClick"
               " imgDblClick")
AROUND = {"lbl_Units": "click dblclick rightclick", "img_State": "click dblclick", "Surface": "click rightclick",
          "mnu_Edit": "choose choose"}


class Numeric(Valued):
    DERIVED = ("OutputValue", "InvalidValue", "InvalidEntry", "MinParamValue", "MaxParamValue")
    MESSAGES = (*FIVE[:4], "MsgInvalidValue", FIVE[4])
    VALUES = {
        **names("DeviceValue ModifiedValue", (0, 1, 5, 50, 125, 135, -5, 150)), "UnitType": TYPES,
        **names("DeviceUnit OutputUnit DefaultUnit", (0, 0, 1, 2, 2, 5, 7, 15, 16, 52, 53)),
        "MinValue": (0, 0.5, -40, 100), "MaxValue": (9.5, 100, 100, 1000), "OtherUserValue": (0, 7, -3),
        "UnitEnable": (True, True, False), "ReadOnly": (False, False, False, True), "WidthDifference": (1305, 500, 3000, -200),
    }
    OFTEN = ("DeviceValue", "DeviceValue", "ModifiedValue", "OutputUnit", "DeviceUnit", "MaxValue", "MinValue", "UnitType")

    def created(self):
        super().created()
        self.pending = self.typed = self.fetched = False
        self.unit = 0
        self.begin()

    def out_of(self, value, low, high):
        def beyond(one, other):
            return one > other and abs(one - other) > 1e-9 * max(abs(one), abs(other))
        return beyond(low, value) or beyond(value, high)

    def judge(self, value):
        """Whether a device's value is outside the limits, in its own unit and in the operator's."""
        low, high = self["MinParamValue"], self["MaxParamValue"]
        self["InvalidValue"] = self.out_of(value, self.back(low), self.back(high)) and self.out_of(self.forth(value), low, high)
        if self["InvalidValue"]:
            self.emit("InvalidValueSetTrue")

    def forth(self, value):
        return convert(value, self["UnitType"], self["DeviceUnit"], self["OutputUnit"])

    def back(self, value):
        return convert(value, self["UnitType"], self["OutputUnit"], self["DeviceUnit"])

    def limit(self, value):
        return convert(value, self["UnitType"], self["DefaultUnit"], self["OutputUnit"])

    def other(self):
        return plain(self["OtherUserValue"], self.form.decimal)

    @way_of_a_value
    def undo(self):
        if self["DataModified"]:
            yield from self.take_back()
            self["DataModified"] = False
            self.colors()
            self.assign(self["DeviceValue"])


    def fc_GetCaptionID(self):
        return "UNIT_" + UNITS[self["OutputUnit"]][1]

    def calls(self, random):
        return (("fc_GetCaptionID",),)

    def anew(self, value):
        """In the new output unit."""
        return convert(value, self["UnitType"], self.previous, self["OutputUnit"])

    def put_OutputUnit(self):
        self.previous, self.unit = self.unit, self["OutputUnit"]
        self.output_unit_changed()
        self["UnitLabelCaption"] = UNITS[self["OutputUnit"]][0]
        self.put_UnitLabelCaption()

    def put_DefaultUnit(self):
        self.put_MinValue()
        self.put_MaxValue()

    def unit_caption(self, text):
        self.caption("lbl_Units", text)
        self.place_icon()

    def put_UnitLabelCaption(self):
        self.unit_caption(self["UnitLabelCaption"])

    def place_icon(self):
        if self["UnitEnable"] and self["OutputUnit"] != 52:
            self["img_State.Left"] = self["lbl_Units.Left"] + self["lbl_Units.Width"] + 100

    def put_UnitEnable(self):
        self["lbl_Units.Visible"] = self["UnitEnable"] and self.supported()
        self.layout()

    def wanted(self, widget):
        return self["UnitEnable"] if widget == "lbl_Units" else True

    def caption(self, label, text):
        changed = self[label + ".Caption"] != text
        self[label + ".Caption"] = text
        self[label + ".Width"] = self.form.width(text, self.s.get(label + ".FontBold", False))
        if changed:
            self.emit(self.PREFIX[label] + "Change")

    # --- A text field

    def number(self):
        """The number of the text, or None."""
        text = self["txt_TextBox.Text"]
        valid = is_valid(text, self.form.decimal, self.form.group)
        return reading(text, self.form.decimal, self.form.group) if valid else None

    def set_text(self, text, typed=False):
        if self["txt_TextBox.Text"] != text:
            self["txt_TextBox.Text"] = text
            self.select("txt_TextBox", 0, 0)
            self.text_changed()
        self.typed = typed

    def select(self, widget, start, length):
        last = len(self[widget + ".Text"])
        self[widget + ".SelStart"], self[widget + ".SelLength"] = min(start, last), min(length, last - min(start, last))

    def select_all(self):
        if self["txt_TextBox.Text"]:
            self.select("txt_TextBox", 0, 1000)

    def got_focus(self, widget):
        self.fetched = widget == "txt_TextBox"
        if self.fetched:
            self.select_all()
        super().got_focus(widget)

    def button(self, widget, which, end):
        if widget == "txt_TextBox" and end == "MouseUp" and self.fetched:
            self.fetched = False
            self.select_all()
        return super().button(widget, which, end)

    def leave(self):
        if self.focused == "txt_TextBox":
            self.select(self.focused, self.selection()[1], 0)
        return super().leave()

    def selection(self):
        start = self["txt_TextBox.SelStart"]
        return start, start + self["txt_TextBox.SelLength"]

    def selected_text(self):
        return self["txt_TextBox.Text"][slice(*self.selection())]

    def paste(self, widget, text):
        """In the place of what is selected."""
        start, end = self.selection()
        if start < end or text:
            whole = self[widget + ".Text"]
            self[widget + ".Text"] = whole[:start] + text + whole[end:]
            self.select(widget, start + len(text), 0)
            self.edited()

    def edited(self):
        if abs(self.number() or 0) >= self.LARGEST:
            raise Unsaid
        self.typed = True
        self.text_changed()

    def type(self, widget, text):
        for character in text:
            self.strike(widget, {",": 188, "-": 189, ".": 190}.get(character, ord(character.upper())), ord(character), self.struck)
            if not self.able(widget):
                return

    def edit(self, widget, code, press):
        """What a key does to the text, or to the caret in it."""
        start, end = self.selection()
        to = {36: 0, 35: 1000, 37: max(end - 1, 0), 39: end + 1}.get(code)
        if to is not None:
            self.select(widget, to, 0)
        elif self[widget + ".Locked"]:
            return
        elif code in (8, 46):
            if start == end:
                self.select(widget, max(start - (code == 8), 0), int(start > 0 or code == 46))
            self.paste(widget, "")
        elif press >= 32:
            self.paste(widget, chr(press))

    def press(self, widget):
        if widget == "txt_TextBox":
            if not self["Surface.Height"] or self[widget + ".Width"] < 300 + self.form.width(self[widget + ".Text"]):
                raise Unsaid  # where in what a hand finds of the text
            self.select(widget, 1000, 0)
        return super().press(widget)


    WRITES, LARGEST = ("paste", "type"), 2**31 - 1
    ENTRIES = ("0", "12", "12.5", "150", "-3", "abc", "", " 7 ", "1e2", "1,000", "99", "12,5")

    def random_steps(self, random):
        if random.random() < 0.02:
            return [("form", "locale", *random.choice((('"."', '","'), ('","', '"."'), ('","',))))]
        if "paste" in self.ACTIONS.get("txt_TextBox", "") and random.random() < 0.05:
            # An entry, or none, that is under way when its parameter becomes read-only.
            begun = random.choice((self.random_entry(random), ("put", "DeviceValue", 50)))
            shown = random.choice(([("put", "OutputUnit", self.value(random, "OutputUnit"))], self.few(random)))
            return [("do", "txt_TextBox", "focus"), begun, ("put", "ReadOnly", True), *shown, ("do", "txt_TextBox", "blur"),
                    ("put", "ReadOnly", False)]
        return super().random_steps(random)

    def random_do(self, random):
        step = super().random_do(random)
        if step[2] == "paste":
            return self.random_entry(random)
        return step

    def random_entry(self, random):
        text = random.choice(self.ENTRIES)
        where = (0, 99) if random.random() < 0.7 else (random.randint(0, 4), random.randint(0, 2))
        return ("both", ("do", "txt_TextBox", "select", *where),
                ("do", "txt_TextBox", random.choice(("paste", "type")) if text else "paste", text))


class UpDown(Numeric):
    CLASS, FACE, SHOWN = "ctx_ZorUpDown", "txt_TextBox", ("txt_TextBox", "upd_UpDown", "lbl_Units")
    STORED = ("CFail MinValue MaxValue MinParamValue MaxParamValue InvalidValue DataModified WaitingForData " + UNIT_ROWS +
              BINDING + " MsgInvalidValue MsgDeviceTagNotFound MsgDefault NumberOfDigits IconEnable UnitEnable ReadOnly"
              " DefaultUnit UnitLabelCaption DeviceType DeviceVersion RegisterType EnableControl WidthDifference")
    RUNTIME = "MessageHeader ModifiedValue OtherUserValue"
    DEFAULTS = {"NumberOfDigits": 3, "WidthDifference": 1305}
    OWN_EFFECTS = {"MsgInvalidValue": "status", "WidthDifference": "layout"}
    EVENTS = "InvalidValueSetTrue upDownChange upDownDownClick upDownUpClick " + TEXT_EVENTS
    PREFIX = {"txt_TextBox": "text", "lbl_Units": "units", "img_State": "img"}
    AT = {"lbl_Units": (60, 60)}
    COLOURED, MENU_OVER = ("Surface", "lbl_Units"), ("Surface", "lbl_Units")
    WIDGETS = {"txt_TextBox": FIELD,
               "upd_UpDown": PLACE + " Value Min Max", "lbl_Units": LABEL}
    ACTIONS = {"txt_TextBox": "paste paste paste blur blur focus key click rightclick", "upd_UpDown": "up down", **AROUND}
    KEYS = (40, 38, 112, *EDITING)
    HEIGHTS = (200, 315, 400, 900)  # a hand finds nothing lower on a screen

    def begin(self):
        self["upd_UpDown.Min"], self["upd_UpDown.Max"], self["upd_UpDown.Value"] = 0, 10, 0

    def other(self):
        return self["OtherUserValue"]

    # --- Limits and the button

    def clamped(self, value):
        low, high = self["upd_UpDown.Min"], self["upd_UpDown.Max"]
        return low if low > high else min(max(value, low), high)

    def set_spin(self, value):
        value = self.clamped(value)
        if self["upd_UpDown.Value"] != value:
            self["upd_UpDown.Value"] = value
            self.emit("upDownChange")

    def put_MinValue(self):
        self["MinParamValue"] = self.limit(self["MinValue"])
        self["upd_UpDown.Min"] = whole(self["MinParamValue"])
        self.set_spin(self["upd_UpDown.Value"])

    def put_MaxValue(self):
        self["MaxParamValue"] = self.limit(self["MaxValue"])
        self["upd_UpDown.Max"] = whole(self["MaxParamValue"])
        self.set_spin(self["upd_UpDown.Value"])

    # --- Values

    def spin_of(self, number):
        low, high = self["upd_UpDown.Min"], self["upd_UpDown.Max"]
        return high if number > high else low if number < low else whole(number)

    def text_changed(self):
        self.pending = True
        number = self.number()
        if number is not None:
            self.modify(whole(number) != self.reference)
            self.colors()
            self.emit("textChange")

    def take(self, value, from_device):
        self.judge(value)
        yield
        number = self.forth(value)
        if from_device:
            number = self.reference = whole(number)
        self.set_text(plain(number, self.form.decimal))
        yield
        self.set_spin(self.spin_of(self.reference if from_device else self.number()))
        yield

    def put_DeviceUnit(self):
        number = self.number()
        if number is not None:
            self.assign(whole(self.back(number)))

    def output_unit_changed(self):
        number, anew = self.number(), self.anew
        if number is None:
            return
        self.reference = whole(anew(self.reference))
        self["OtherUserValue"] = whole(anew(self["OtherUserValue"]))
        self["MinParamValue"], self["MaxParamValue"] = anew(self["MinParamValue"]), anew(self["MaxParamValue"])
        self.set_text(plain(anew(number), self.form.decimal), self.typed)
        try:
            self["upd_UpDown.Min"], self["upd_UpDown.Max"] = whole(self["MinParamValue"]), whole(self["MaxParamValue"])
        except Overflow:
            raise Unsaid from None  # how far the button follows
        self.set_spin(self.spin_of(self.number()))

    def loaded(self):
        self.unit = self["OutputUnit"]
        self["lbl_Units.Visible"] = self["UnitEnable"] and self.supported()
        self["MinParamValue"], self["MaxParamValue"] = self.limit(self["MinValue"]), self.limit(self["MaxValue"])
        self["upd_UpDown.Min"], self["upd_UpDown.Max"] = whole(self["MinParamValue"]), whole(self["MaxParamValue"])
        self["upd_UpDown.Value"] = self.clamped(self["upd_UpDown.Value"])
        self.caption("lbl_Units", UNITS[self["OutputUnit"]][0])
        self.colors()
        self.enabled()
        self.layout()

    # --- The operator

    def up(self, widget):
        self.click_spin(1, "upDownUpClick")

    def down(self, widget):
        self.click_spin(-1, "upDownDownClick")

    def struck(self, widget, code, press):
        if code in (40, 38):
            self.click_spin(1 if code == 38 else -1, "upDownUpClick" if code == 38 else "upDownDownClick")
        else:
            self.edit(widget, code, press)

    def click_spin(self, way, event):
        self.one_step(self["upd_UpDown.Value"], way)
        self.emit(event)

    @step
    def one_step(self, before, way):
        self.set_spin(before + way)
        yield
        if self.locked():  # by then
            self["upd_UpDown.Value"] = before
            return
        self.set_text(str(self["upd_UpDown.Value"]))
        yield
        self.assign(whole(self.back(self["upd_UpDown.Value"])))
        yield
        self.modify(self["upd_UpDown.Value"] != self.reference)
        self.colors()

    def lost_focus(self, widget):
        if self.pending and (self.typed or not self.read_only()):
            self.commit()
        super().lost_focus(widget)

    @step
    def commit(self):
        number = self.number()
        if number is None:
            self.set_text(str(self["upd_UpDown.Value"]))
        else:
            taken = self.clamped(number)
            if taken != number:
                self.set_text(str(taken))
            yield
            self.set_spin(whole(self.number()))
            yield
            self.assign(whole(self.back(whole(self.number()))))
        yield
        self.pending = self.typed = False

    def take_back(self):
        self.set_text(str(self.reference))
        yield
        self.set_spin(self.reference)
        yield

    # --- Looks


    def layout(self):
        field, spin, label, icon = "txt_TextBox", "upd_UpDown", "lbl_Units", "img_State"
        self[field + ".Width"] = max(self["Surface.Width"] - self["WidthDifference"], 100)
        self[field + ".Height"] = self[spin + ".Height"] = max(self["Surface.Height"], 30)
        self[spin + ".Left"] = self[field + ".Left"] + self[field + ".Width"]
        self[label + ".Left"] = self[icon + ".Left"] = self[spin + ".Left"] + self[spin + ".Width"] + 100
        self.place_icon()
        for widget in (spin, label, icon):
            self[widget + ".Top"] = self[field + ".Top"] + self[field + ".Height"] / 2 - self[widget + ".Height"] / 2


CONTROLS = {"up_down": UpDown}
