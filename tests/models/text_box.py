"""The text box."""

from model import step, way_of_a_value
from numeric import AROUND, EDITING, FIELD, LABEL, TEXT_EVENTS, UNIT_ROWS, Numeric
from units import UNITS, convert, fixed, is_valid, plain, reading
from valued import BINDING
from values import FACE, WINDOW, Colour, names

LEFT, RIGHT = Colour("left"), Colour("right")


class TextBox(Numeric):
    CLASS, FACE, SHOWN = "ctx_ZorTextBox", "txt_TextBox", ("txt_TextBox", "lbl_Units")
    STORED = ("CFail MinParamValue MaxParamValue InvalidEntry InvalidEntryEnable DataModified WaitingForData " + UNIT_ROWS +
              BINDING + " MsgInvalidEntry MsgInvalidEntryForText MsgInvalidEntryTo MsgInvalidEntryNAN MsgDeviceTagNotFound"
              " MsgDefault EntryType NumberOfDigits MaxLength UnitEnable IconEnable ReadOnly DefaultUnit MinValue MaxValue"
              " UnitLabelCaption DeviceType DeviceVersion RegisterType EnableControl NumberOfDecimals WidthDifference")
    RUNTIME = "MessageHeader ModifiedValue TextFontBold UnitsFontBold SelectedText"
    DEFAULTS = {"NumberOfDigits": 3, "WidthDifference": 1305, "MaxLength": 10, "NumberOfDecimals": 3, "EntryType": 1,
                "MsgInvalidEntry": "Invalid Entry", "MsgInvalidEntryTo": "To", "MsgInvalidEntryNAN": "Invalid Entry",
                "MsgInvalidEntryForText": "Text is too long. Please enter a shorter text."}
    FRESH = {"DeviceUnit": 2}
    OWN_EFFECTS = {"WidthDifference": "layout",
                   **names("MsgInvalidEntry MsgInvalidEntryForText MsgInvalidEntryNAN", "status")}
    OWN_SILENT = ("MsgInvalidEntryTo", "UnitsFontBold", "SelectedText")
    MESSAGES = ("MsgCfail", "MsgDataNotAvailable", "MsgDataChanged", "MsgDefault", "MsgInvalidEntry", "MsgDeviceTagNotFound",
                "MsgInvalidEntryTo", "MsgInvalidEntryNAN")
    OTHER_MESSAGE = "MSG_INVALIDENTRYTO"
    EVENTS = "InvalidEntrySetTrue " + TEXT_EVENTS
    PREFIX = {"txt_TextBox": "text", "lbl_Units": "units", "img_State": "img"}
    AT = {"lbl_Units": (60, 60)}
    COLOURED, MENU_OVER = ("Surface", "lbl_Units", "txt_TextBox"), ("Surface", "lbl_Units")
    WIDGETS = {"txt_TextBox": FIELD + " Alignment",
               "lbl_Units": LABEL + " FontBold BackColor"}
    ACTIONS = {"txt_TextBox": "paste paste paste blur blur focus key click rightclick", **AROUND}
    KEYS, LARGEST = (112, *EDITING), 1e15
    VALUES = {**Numeric.VALUES, **names("DeviceValue ModifiedValue", (0, 1, 50, 1234, 12.5, -5, 150.25, "abc", "12", "", "1,000")),
              "EntryType": (1, 1, 1, 0), "SelectedText": ("", "5", "a", "12"), "NumberOfDigits": (0, 2, 3), "NumberOfDecimals": (1, 3), "MaxLength": (10, 2, 0)}
    HEIGHTS = (0, 315, 400, 900)

    def begin(self):
        self.display, self.shown, self.source, self.custom, self.undoing = 0, None, "device", None, False
        self["TextFontBold"], self["txt_TextBox.Alignment"], self.device_unit = False, RIGHT, 0

    READ_AS = {**Numeric.READ_AS, "UnitsFontBold": "lbl_Units.FontBold", "SelectedText": Numeric.selected_text}

    # --- Texts

    def value_of(self, value):
        """A value as a number, where it is a valid one."""
        if isinstance(value, str):
            valid = is_valid(value, self.form.decimal, self.form.group)
            return reading(value, self.form.decimal, self.form.group) if valid else None
        return None if value is None else float(value)

    def formatted(self, number):
        decimals = UNITS[self["OutputUnit"]][2]
        if decimals is None:
            if self["OutputUnit"] != 52:
                return ""
            decimals = max(self["NumberOfDigits"], 0)
        return fixed(number, decimals, self.form.decimal)

    def text_of(self, value):
        return "" if value is None else value if isinstance(value, str) else plain(value, self.form.decimal)

    def show(self, value):
        number = self.value_of(value) if self["EntryType"] == 1 else None
        self["txt_TextBox.Alignment"] = LEFT if number is None else RIGHT
        self.set_text(self.text_of(value) if number is None else self.formatted(number))

    def equals_display(self):
        text = self["txt_TextBox.Text"]
        if self["EntryType"] == 0:
            return text == self.text_of(self.display)
        number = self.number()
        return number is not None and number in (self.value_of(self.display), self.value_of(self.shown))

    def edited(self):
        self.source = "edit"
        super().edited()

    def text_changed(self):
        self.pending = True
        undoing, self.undoing = self.undoing, False
        self.modify(not undoing and not self.equals_display())
        self.colors()
        self.emit("textChange")

    # --- Values

    @way_of_a_value
    def put_DeviceValue(self):
        value = self["DeviceValue"]
        number = self.value_of(value) if self["EntryType"] == 1 else None
        self.display = value if number is None else self.formatted(self.forth(number)) or None
        self.shown, self.source, self.device_unit = None, "device", self["DeviceUnit"]
        self.show(self.display)
        yield
        if number is None or self.number() is not None:
            self.assign(value)
        yield
        self["DataModified"] = self["InvalidEntry"] = False
        self.colors()
        self.status()

    @way_of_a_value
    def put_ModifiedValue(self):
        value = self["ModifiedValue"]
        number = self.value_of(value)
        self.source = "output"
        self.show(value if number is None else self.forth(number))
        yield
        if number is None or self.number() is not None:
            self.assign(value)
        self.colors()
        self.status()

    def put_DeviceUnit(self):
        number = self.number()
        if number is not None:
            self.assign(self.back(number))

    @step
    def output_unit_changed(self):
        text, display = self.number(), self.value_of(self.display)
        if text is not None and display is not None:
            self["MinParamValue"], self["MaxParamValue"] = self.anew(self["MinParamValue"]), self.anew(self["MaxParamValue"])
            self.display, self.shown = self.anew(display), None
            modified = self["DataModified"]
            self.show(self.anew(text))
            yield
            self["DataModified"], self.shown = modified, self.formatted(self.display)
            self.colors()

    def put_MinValue(self):
        self["MinParamValue"] = self.limit(self["MinValue"])

    def put_MaxValue(self):
        self["MaxParamValue"] = self.limit(self["MaxValue"])

    def put_OutputUnit(self):
        super().put_OutputUnit()
        self.align(self["EntryType"] == 1 and self.number() is not None)

    def align(self, right):
        self["txt_TextBox.Alignment"] = RIGHT if right else LEFT

    def put_EntryType(self):
        self.align(self["EntryType"] == 1)

    def put_NumberOfDecimals(self):
        self.show(self["txt_TextBox.Text"])

    def put_TextFontBold(self):
        self["txt_TextBox.FontBold"] = self["TextFontBold"]

    def put_SelectedText(self):
        self.paste("txt_TextBox", self["SelectedText"])

    def put_UnitsFontBold(self):
        self["lbl_Units.FontBold"] = self["UnitsFontBold"]
        self["lbl_Units.Width"] = self.form.width(self["lbl_Units.Caption"], self["UnitsFontBold"])

    def loaded(self):
        self.unit, self.device_unit, self.source = self["OutputUnit"], self["DeviceUnit"], "output"
        self["lbl_Units.Visible"] = self["UnitEnable"] and self.supported()
        self.caption("lbl_Units", UNITS[self["OutputUnit"]][0])
        self.colors()
        self.enabled()
        self.show(self["txt_TextBox.Text"])
        self.layout()

    def struck(self, widget, code, press):
        self.edit(widget, code, press)

    # --- Leaving and undoing

    def lost_focus(self, widget):
        self.commit(True)
        super().lost_focus(widget)

    def s_ForceOutputValueUpdate(self):
        self.commit(False)

    def calls(self, random):
        return ("fc_GetCaptionID",), ("s_ForceOutputValueUpdate",)

    def invalid(self, beyond):
        self["InvalidEntry"] = beyond
        if beyond:
            self.emit("InvalidEntrySetTrue")

    def commit(self, reformat):
        number = self.number()
        if self.pending:
            self.validate(number if self["EntryType"] == 1 else None, reformat)
            self.pending = False
        self.status()
        if not self["InvalidEntry"]:
            self.assign(self.entry())

    def validate(self, number, reformat):
        holding = self["RegisterType"] == 0
        if self["EntryType"] == 0:
            return self.invalid(len(self["txt_TextBox.Text"]) > self["MaxLength"] and self["DataModified"])
        if number is None:
            return self.invalid(True) if holding else None
        if not self["InvalidEntryEnable"]:
            self["InvalidEntry"] = False
        elif holding:
            self.invalid(self["DataModified"] and not self["MinParamValue"] <= number <= self["MaxParamValue"])
        return self.show(self["txt_TextBox.Text"]) if reformat and not self["InvalidEntry"] else None

    def entry(self):
        number = self.number() if self["EntryType"] == 1 else None
        if self.source == "output":
            return self["OutputValue"]
        if self.source == "device" or self.equals_display():
            value = self.value_of(self["DeviceValue"]) if self["EntryType"] == 1 else None
            if value is None or self.device_unit == self["DeviceUnit"]:
                return self["DeviceValue"]
            return convert(value, self["UnitType"], self.device_unit, self["DeviceUnit"])
        return self["txt_TextBox.Text"] if number is None else self.back(number)

    def take_back(self):
        self.source, self.undoing = "device", True
        self.show(self.display)
        self.undoing = False
        yield

    # --- Looks

    def display_text(self):
        return self.text_of(self.display)

    def changed_texts(self):
        text = self["MsgDataChanged"]
        return f"{text} :  , {self.display_text()}", f"{text}, :  , {self.display_text()}"

    def invalid_rows(self):
        def number(value):
            return plain(value, self.form.decimal)
        label = UNITS[self["OutputUnit"]][0]
        text = f"{self['MsgInvalidEntry']}  {number(self['MinParamValue'])} {label} {self['MsgInvalidEntryTo']}" \
               f" {number(self['MaxParamValue'])} {label}"
        if not self["InvalidEntryEnable"]:
            text = self["MsgInvalidEntryNAN"]
        if self["EntryType"] == 0:
            text = self["MsgInvalidEntryForText"]
        yield "", self["InvalidEntry"], text, 2, text, "exclamation"

    def coloured(self, shown):
        self.custom = shown

    def colors(self):
        super().colors()
        self["txt_TextBox.FontBold"] |= self["TextFontBold"]

    def paint(self, colour):
        """A colour of the host's own stands for both of the system's; a read-only field keeps what it had, unless it fails."""
        if self.custom and colour in (FACE, WINDOW):
            colour = self["txt_TextBox.BackColor"] if colour == FACE and not self["CFail"] else self.custom
        super().paint(colour)

    def layout(self):
        field, label, icon = "txt_TextBox", "lbl_Units", "img_State"
        self[field + ".Width"] = max(self["Surface.Width"] - self["WidthDifference"], 100)
        self[field + ".Height"] = max(self["Surface.Height"], 280)
        self[label + ".Left"] = self[icon + ".Left"] = self[field + ".Left"] + self[field + ".Width"] + 100
        self.place_icon()
        for widget in (label, icon):
            self[widget + ".Top"] = self[field + ".Top"] + self[field + ".Height"] / 2 - self[widget + ".Height"] / 2


CONTROLS = {"text_box": TextBox}
