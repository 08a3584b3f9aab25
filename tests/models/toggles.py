"""Check box and option button."""

from choice import AROUND, HEAD, LOOKS, RAISED, TAIL, Choice, mask
from model import way_of_a_value
from valued import FIVE
from values import names


class Toggle(Choice):
    """What check box and option button have in common."""

    KEYS, MESSAGES = (32, 32, 112), FIVE
    CHANGES = {**Choice.CHANGES, "KeyDown": ("KeyCode", 0, 32)}  # arrows move the focus on Qt
    LINE, ICON = 330, 25

    def __init_subclass__(cls):
        face = cls.FACE
        cls.SHOWN, cls.COLOURED, cls.MENU_OVER = (face,), ("Surface", face), ("Surface", face)
        cls.WIDGETS = {face: LOOKS + " Caption Value"}
        cls.ACTIONS = {face: f"{cls.PUSH} {cls.PUSH} {cls.PUSH} focus blur key key click dblclick rightclick", **AROUND}
        setattr(cls, "put_" + cls.CAPTION, Toggle.put_caption)

    def paint(self, colour):
        self.layout()

    def put_caption(self):
        self[self.FACE + ".Caption"] = self[self.CAPTION]
        self.layout()

    def loaded(self):
        self[self.FACE + ".Caption"] = self[self.CAPTION]
        super().loaded()

    def layout(self):
        face, height = self.FACE, self["Surface.Height"]
        self[face + ".Width"] = self.form.caption(self[face + ".Caption"], self[face + ".FontBold"]) + 330
        self["img_State.Left"] = self[face + ".Left"] + self[face + ".Width"] + 100
        self[face + ".Top"] = round((height - self.LINE) / 2) if height >= self.LINE else 0
        self["img_State.Top"] = self[face + ".Top"] + self.ICON if height >= self.LINE else 25

    def click(self, widget):
        if widget != self.FACE:
            super().click(widget)
        elif self.press(widget):
            self.push()

    def dblclick(self, widget):
        super().dblclick(widget)
        if widget == self.FACE and self.hears(widget):
            self.push()

    def toggle(self, widget):
        self.click(widget)

    choose = toggle

    def struck(self, widget, code, press):
        if press == 32:
            self.push()


class CheckBox(Toggle):
    CLASS, FACE, PUSH, CAPTION = "ctx_ZorCheckBox", "chk_CheckBox", "toggle", "CheckBoxCaption"
    STORED = "CFail " + HEAD + TAIL + " CheckBoxCaption BitFieldEntryIndex"
    RUNTIME = "MessageHeader ModifiedValue OtherUserValue CheckBoxValue"
    DERIVED = ("OutputValue", "CheckBoxValue")
    DEFAULTS, FRESH = {"CheckBoxCaption": "check"}, {"CheckBoxCaption": "Check1"}
    EVENTS = RAISED + "DataModifiedReset CheckClick CheckDblClick CheckGotFocus CheckKeyDown CheckKeyPress CheckKeyUp" \
                      " CheckLostFocus CheckMouseDown CheckMouseUp"
    PREFIX = {"chk_CheckBox": "Check", "img_State": "img"}
    AT = {"chk_CheckBox": (120, 165)}
    VALUES = {**Choice.VALUES, **names("DeviceValue ModifiedValue", (0, 1, 8, 9, -1, 6)), "OtherUserValue": (True, False),
              "BitFieldEntryIndex": (0, 0, 3, 30, -1, 31)}

    def created(self):
        self.reference = self["OtherUserValue"] = False


    READ_AS = {**Choice.READ_AS, "CheckBoxCaption": "chk_CheckBox.Caption",
               "CheckBoxValue": lambda self: bool(self["chk_CheckBox.Value"])}

    def loaded(self):
        super().loaded()
        self.reference = False  # the next value is the first that is compared

    def mask(self):
        return mask(self["BitFieldEntryIndex"])

    def meant(self, value):
        return bool(value & self.mask())


    def changed(self):
        overtaken = self.under_way()
        if self.locked():
            return
        on = bool(self["chk_CheckBox.Value"])
        self["DataModified"] = on != self.reference
        self.emit("DataModifiedSetTrue" if on != self.reference else "DataModifiedReset")
        if not overtaken():
            self.assign(self["OutputValue"] | self.mask() if on else self["OutputValue"] & ~self.mask())
        self.colors()
        self.emit("CheckClick")

    def push(self):
        self["chk_CheckBox.Value"] = int(self.reference) if self.locked() else 1 - self["chk_CheckBox.Value"]
        if not self.locked():
            self.changed()

    def show(self, on):
        if self["chk_CheckBox.Value"] != int(on):
            self["chk_CheckBox.Value"] = int(on)
            self.changed()

    def take(self, value, from_device):
        steps = super().take(value, from_device)
        next(steps)
        if self.locked() and not from_device:
            self["DataModified"] = bool(self["chk_CheckBox.Value"]) != self.reference
        yield


    @way_of_a_value
    def undo(self):
        if self["DataModified"]:
            if self["chk_CheckBox.Value"] == int(self.reference):
                self.changed()
            else:
                self.show(self.reference)
            yield
            if self.locked():
                self["DataModified"] = False
            self.colors()
            self.assign(self["DeviceValue"])


class OptionButton(Toggle):
    CLASS, FACE, PUSH, CAPTION = "ctx_ZorOptionButton", "opt_OptionButton", "choose", "OptionButtonCaption"
    STORED = "CFail " + HEAD + TAIL + " OptionButtonCaption EnumEntryValue"
    RUNTIME = "MessageHeader ModifiedValue OtherUserValue EnumValue OptionButtonValue"
    DERIVED, ALWAYS = ("OutputValue",), ("EnumEntryValue",)
    DEFAULTS = {"OptionButtonCaption": "option"}
    OWN_SILENT = ("OptionButtonValue",)
    EVENTS = RAISED + "OptionClick OptionDblClick OptionGotFocus OptionKeyDown OptionKeyPress OptionKeyUp OptionLostFocus" \
                      " OptionMouseDown OptionMouseUp OptionValidate"
    PREFIX = {"opt_OptionButton": "Option", "img_State": "img"}
    AT = {"opt_OptionButton": (120, 157.5)}
    OFTEN = (*Choice.OFTEN, "EnumValue", "EnumEntryValue")
    LINE, ICON = 315, 20

    def created(self):
        super().created()
        self["opt_OptionButton.Value"], self["EnumValue"], self.stood_for = False, 0, 0
        self.armed = False

    def loaded(self):
        super().loaded()
        self.stood_for = self["EnumEntryValue"]

    READ_AS = {**Choice.READ_AS, "OptionButtonCaption": "opt_OptionButton.Caption", "OptionButtonValue": "opt_OptionButton.Value"}

    def show(self, value):
        """A value comes: selected or not, and a click where the button becomes selected, or stands for something else."""
        on = value == self["EnumEntryValue"]
        fresh = on and (not self["opt_OptionButton.Value"] or self.stood_for != self["EnumEntryValue"])
        self["opt_OptionButton.Value"], self.stood_for = on, self["EnumEntryValue"]
        return fresh


    def clicked_button(self):
        self["OutputValue"] = self["EnumEntryValue"] if self["opt_OptionButton.Value"] else self["EnumValue"]
        self.modify(self["OutputValue"] != self.reference)
        self.colors()
        self.emit("OptionClick")
        if self["opt_OptionButton.Value"]:
            self.emit("OutputValueChange")

    def apply(self):
        self.turn, self.armed = self.turn + 1, True
        self.reference = self["DeviceValue"]
        was = self["opt_OptionButton.Value"]
        fresh = self.show(self["EnumValue"])
        self["DataModified"], self["OutputValue"] = False, self["EnumValue"]
        if was and self["opt_OptionButton.Value"] and not fresh:
            self["DataModified"] = not self.locked() and self["OutputValue"] != self.reference
        self.status()
        self.colors()
        if fresh and self.may_click():
            self.clicked_button()

    def may_click(self):
        """A button that was read back has its first click swallowed, and arms itself by it."""
        was, self.armed = self.armed, True
        return was and (not self.locked() or self["EnumEntryValue"] == self["DeviceValue"])

    def put_DeviceValue(self):
        self["EnumValue"] = self["DeviceValue"]
        self.apply()

    def put_EnumValue(self):
        self.apply()

    def put_ModifiedValue(self):
        self.turn, value, self.armed = self.turn + 1, self["ModifiedValue"], True
        fresh = self.show(value)
        if not self["opt_OptionButton.Value"]:
            self["DataModified"] = False
        self["OutputValue"] = value
        self.status()
        self.colors()
        if fresh and self.may_click():
            self.clicked_button()

    def undo(self):
        self.turn += 1
        on = self.reference == self["EnumEntryValue"]
        fresh, self["opt_OptionButton.Value"] = on and not self["opt_OptionButton.Value"], on
        self["OutputValue"], self["DataModified"] = self["DeviceValue"], False
        self.colors()
        if fresh and self.may_click():
            self.clicked_button()

    def push(self):
        if self["opt_OptionButton.Value"]:
            return
        self["opt_OptionButton.Value"], armed = True, self.armed
        if self.may_click():
            self.clicked_button()
        elif armed:
            self["opt_OptionButton.Value"] = self["OutputValue"] == self["EnumEntryValue"]


CONTROLS = {"check_box": CheckBox, "option_button": OptionButton}
