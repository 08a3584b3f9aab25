"""The slider."""

from model import step
from numeric import LABEL, UNIT_ROWS, Numeric
from units import UNITS, plain, whole
from valued import BINDING
from values import PLACE, names

LABELS = tuple(f"lbl_{end}{part}" for end in ("Min", "Max") for part in ("Prefix", "Value", "Unit"))


class Slider(Numeric):
    CLASS, FACE, SHOWN = "ctx_ZorSlider", "sld_Slider", ("sld_Slider", *LABELS)
    STORED = ("CFail MinValue MaxValue MinParamValue MaxParamValue InvalidValue DataModified WaitingForData " + UNIT_ROWS +
              BINDING + " MsgInvalidValue MsgDeviceTagNotFound MsgDefault IconEnable UnitEnable ReadOnly DefaultUnit"
              " UnitLabelCaption DeviceType DeviceVersion RegisterType EnableControl EnableValues MinPrefix MaxPrefix")
    RUNTIME = "MessageHeader ModifiedValue OtherUserValue ScaleFactor TickFrequency GetNumTicks"
    READ = ("GetNumTicks",)
    DEFAULTS, FRESH = {"MaxValue": 10, "MaxParamValue": 10}, {"DeviceUnit": 2}
    OWN_EFFECTS = {"MsgInvalidValue": "status"}
    OWN_SILENT = ("ScaleFactor", "TickFrequency")
    EVENTS = ("InvalidValueSetTrue DataModifiedSetTrue OutputValueChange sliderChange sliderGotFocus sliderKeyDown sliderKeyUp"
              " sliderLostFocus sliderScroll sliderValidate imgClick imgDblClick " +
              " ".join(f"Label{name[4:]}{end}" for name in LABELS for end in ("Change", "Click", "DblClick")))
    PREFIX = {"sld_Slider": "slider", "img_State": "img", **{name: "Label" + name[4:] for name in LABELS}}
    AT = names(" ".join(LABELS), (60, 60))
    COLOURED, MENU_OVER = ("Surface", *LABELS), ("Surface", *LABELS)
    WIDGETS = {"sld_Slider": PLACE + " Value Min Max ToolTipText", **names(" ".join(LABELS), LABEL)}
    ACTIONS = {"sld_Slider": "move move move move focus blur key key key", **names(" ".join(LABELS), "click"),
               "lbl_MinPrefix": "click rightclick", "lbl_MaxUnit": "click dblclick rightclick", "img_State": "click dblclick",
               "Surface": "rightclick rightclick", "mnu_Edit": "choose choose"}
    KEYS = (39, 37, 38, 40, 36, 35, 112)
    VALUES = {**Numeric.VALUES, "ScaleFactor": (1, 1, 10, 100), **names("DeviceValue ModifiedValue", (0, 5, 5.4, 12, -3, 7.5, 150)),
              "MinValue": (0, 0.5, -40, 20), "MaxValue": (9.5, 100, 100, 1000, -50), "OtherUserValue": (0, 7.5),
              "EnableValues": (True, True, False), "TickFrequency": (1, 0.5, 7, -2, 0)}

    def begin(self):
        self.output, self["ScaleFactor"], self.ticks = 0, 1, 1
        self["sld_Slider.Min"], self["sld_Slider.Max"], self["sld_Slider.Value"] = 0, 10, 0

    def number_of_ticks(self):
        length = self["sld_Slider.Max"] - self["sld_Slider.Min"]
        return -(-length // self.ticks) + 1 if length > 0 else 1

    def put_TickFrequency(self):
        self.ticks = max(whole(self["ScaleFactor"] * self["TickFrequency"]), 1)

    READ_AS = {"TickFrequency": lambda self: self.ticks / self["ScaleFactor"], "GetNumTicks": number_of_ticks,
               "MinPrefix": "lbl_MinPrefix.Caption", "MaxPrefix": "lbl_MaxPrefix.Caption",
               "OutputValue": lambda self: self.output / self["ScaleFactor"], "ModifiedValue": lambda self: self.output}

    def kept(self, name):
        return self.output if name == "OutputValue" else self.look(name)

    def reference_text(self):
        return plain(self.reference, self.form.decimal)

    # --- Ends

    def clamped(self, value):
        low, high = self["sld_Slider.Min"], self["sld_Slider.Max"]
        return low if low > high else min(max(value, low), high)

    def ends(self, low=None, high=None):
        """New ends: what they cut of an edit is handed back, a device's value stays."""
        if low is not None:
            self["sld_Slider.Min"] = low
        if high is not None:
            self["sld_Slider.Max"] = high
        value = self.clamped(self["sld_Slider.Value"])
        if value != self["sld_Slider.Value"]:
            self["sld_Slider.Value"] = value
            if self["DataModified"] and not self.locked():
                self.moved()

    def show_limits(self, which):
        for end in which:
            self.caption(f"lbl_{end}Value", plain(self[end + "ParamValue"] / self["ScaleFactor"], self.form.decimal))

    def put_MinValue(self):
        self["MinParamValue"] = self.limit(self["MinValue"]) * self["ScaleFactor"]
        self.show_limits(["Min"])
        self.ends(low=whole(self["MinParamValue"]))
        self.layout()

    def put_MaxValue(self):
        self["MaxParamValue"] = self.limit(self["MaxValue"]) * self["ScaleFactor"]
        if self["MaxParamValue"] > self["MinParamValue"]:
            self.ends(high=whole(self["MaxParamValue"]))
        self.show_limits(["Max"])
        self.layout()

    # --- Values

    def assign(self, value):
        self.output = value
        self.emit("OutputValueChange")

    @step
    def moved(self):
        self.modify(self["sld_Slider.Value"] != whole(self.reference))
        yield
        self.assign(self.back(self["sld_Slider.Value"]))
        yield
        self.emit("sliderChange")

    def move_to(self, value):
        value = self.clamped(whole(value))
        if value != self["sld_Slider.Value"]:
            self["sld_Slider.Value"] = value
            if not self.locked():
                self.moved()

    def take(self, value, from_device):
        if from_device:
            value = self["DeviceValue"] = value * self["ScaleFactor"]
        self.judge(value)
        yield
        number = self.forth(value)
        if from_device:
            self.reference = number
        self.move_to(number)
        yield

    def take_back(self):
        self.move_to(self.reference)
        yield

    def put_DeviceUnit(self):
        self.assign(self.back(self["sld_Slider.Value"]))

    def output_unit_changed(self):
        before = self["sld_Slider.Value"]
        self.reference, self["OtherUserValue"] = self.anew(self.reference), self.anew(self["OtherUserValue"])
        position = whole(self.anew(before))
        self["MinParamValue"], self["MaxParamValue"] = self.anew(self["MinParamValue"]), self.anew(self["MaxParamValue"])
        self["sld_Slider.Min"] = whole(self["MinParamValue"])
        if self["MaxParamValue"] > self["MinParamValue"]:
            self["sld_Slider.Max"] = whole(self["MaxParamValue"])
        self["sld_Slider.Value"] = self.clamped(position)
        if self["sld_Slider.Value"] != before and not self.locked():
            self.moved()
        self.show_limits(["Min", "Max"])

    def unit_caption(self, text):
        self.caption("lbl_MinUnit", text)
        if self["lbl_MinUnit.Caption"] == text:
            self.caption("lbl_MaxUnit", text)
        self.layout()

    def put_MinPrefix(self):
        self.caption("lbl_MinPrefix", self["MinPrefix"])
        self.layout()

    def put_MaxPrefix(self):
        self.caption("lbl_MaxPrefix", self["MaxPrefix"])
        self.layout()

    def wanted(self, widget):
        return self["UnitEnable"] if widget.endswith("Unit") else self["EnableValues"] if widget.endswith("Value") else True

    def visibility(self):
        for label in LABELS:
            if not label.endswith("Prefix"):
                self[label + ".Visible"] = self.wanted(label) and self.supported()

    put_EnableValues = visibility

    def put_UnitEnable(self):
        self.visibility()
        self.layout()

    def loaded(self):
        self.unit = self["OutputUnit"]
        self["lbl_MinPrefix.Caption"], self["lbl_MaxPrefix.Caption"] = self["MinPrefix"], self["MaxPrefix"]
        for label in ("lbl_MinPrefix", "lbl_MaxPrefix"):
            self[label + ".Width"] = self.form.width(self[label + ".Caption"])
        self["sld_Slider.Min"] = whole(self["MinParamValue"])
        if self["MaxParamValue"] > self["MinParamValue"]:
            self["sld_Slider.Max"] = whole(self["MaxParamValue"])
        self["sld_Slider.Value"] = self.clamped(self["sld_Slider.Value"])
        self.visibility()
        self.output = self.back(self["sld_Slider.Value"])
        self.show_limits(["Min", "Max"])
        self.unit_caption(UNITS[self["OutputUnit"]][0])
        self.enabled()

    def colors(self):
        pass

    # --- The operator

    def move(self, widget, position):
        before, position = self["sld_Slider.Value"], self.clamped(position)
        if position == before:
            return
        self.emit("sliderScroll")
        # Another value, or a frozen track, takes the handle out of the hand.
        if self["sld_Slider.Value"] == before and self.able("sld_Slider"):
            self.drag(self.clamped(position))

    def drag(self, position):
        self["sld_Slider.Value"] = position
        if self.locked():
            self["sld_Slider.Value"] = self.clamped(whole(self.forth(self.output)))
        else:
            self.moved()

    def struck(self, widget, code, press):
        value = self["sld_Slider.Value"]
        to = {39: value + 1, 38: value + 1, 37: value - 1, 40: value - 1, 36: self["sld_Slider.Min"], 35: self["sld_Slider.Max"]}
        if self.clamped(to.get(code, value)) != value:
            self.drag(self.clamped(to[code]))

    def arguments(self, random, widget, action):
        return (random.randint(-2, 120),) if action == "move" else super().arguments(random, widget, action)

    def layout(self):
        width = self["Surface.Width"]
        self["sld_Slider.Width"] = width - 415 if width >= 700 else 285
        self["img_State.Left"] = self["sld_Slider.Left"] + self["sld_Slider.Width"] + 100
        left = 20
        for label in LABELS[:3]:
            self[label + ".Left"] = left
            left += self[label + ".Width"] + 20
        width_of = [self[label + ".Width"] for label in LABELS[3:]]
        room, place = self["sld_Slider.Width"] - 150, 0
        place = room - round(width_of[1] / 2) - width_of[0] - 20
        fits = left < place and width - width_of[2] - width_of[1] / 2 > room and self["EnableValues"]
        if not fits:
            # Pushed left until it ends at the edge, up to the left group and never into it.
            edge = width - sum(width_of) - 40
            place = left if edge < left - 20 else min(max(left, place), edge)
        for label, own in zip(LABELS[3:], width_of):
            self[label + ".Left"] = place
            place += own + 20
        self["Surface.Height"] = 770


CONTROLS = {"slider": Slider}
