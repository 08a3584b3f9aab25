"""The label and the status image."""

from model import Model
from values import BLACK, PLACE, RED, names

SHARED = ("CFail WaitingForData DeviceValue DataNotAvailable DeviceTypeSupported DeviceMinVersionSupported"
          " DeviceMaxVersionSupported DeviceTag DeviceTagNotFound DeviceVerNotSupported DeviceTypeNotSupported MsgCfail"
          " MsgDataNotAvailable MsgDeviceTagNotFound MsgDefault")


class Label(Model):
    CLASS, FACE = "ctx_ZorLabel", "lbl_Label"
    STORED = SHARED + " IconEnable DeviceType DeviceVersion RegisterType EnableControl LabelCaption LabelFontItalic"
    RUNTIME = "MessageHeader LabelFontBold"
    DEFAULTS = {"DeviceValue": "", "LabelCaption": "Label", "LabelFontBold": False}
    EVENTS = "labelChange labelClick labelDblClick labelMouseDown labelMouseUp imgClick imgDblClick"
    MESSAGES = ("MsgCfail", "MsgDeviceTagNotFound", "MsgDataNotAvailable", "MsgDefault")
    OWN_EFFECTS = {"CFail": "status colors", "RegisterType": "", "LabelCaption": "layout"}
    OWN_SILENT = ("LabelFontItalic", "LabelFontBold")
    PREFIX = {"lbl_Label": "label", "img_State": "img"}
    AT = {"lbl_Label": (60, 60)}
    SHOWN, COLOURED, MENU_OVER = ("lbl_Label",), ("Surface", "lbl_Label"), ()
    WIDGETS = {"lbl_Label": PLACE + " BackColor ForeColor FontBold FontItalic Caption ToolTipText"}
    ACTIONS = names("lbl_Label img_State Surface", "click dblclick rightclick")
    OFTEN = ("CFail", "DeviceValue", "LabelCaption", "LabelFontBold", "DeviceType", "DeviceVersion")

    READ_AS = {"LabelCaption": "lbl_Label.Caption", "LabelFontBold": "lbl_Label.FontBold",
               "LabelFontItalic": "lbl_Label.FontItalic"}

    def created(self):
        self["lbl_Label.Caption"] = ""

    def caption(self, text):
        changed = self["lbl_Label.Caption"] != text
        self["lbl_Label.Caption"] = text
        self.measure()
        if changed:
            self.emit("labelChange")

    def measure(self):
        fonts = self["lbl_Label.FontBold"], self["lbl_Label.FontItalic"]
        self["lbl_Label.Width"] = self.form.width(self["lbl_Label.Caption"], *fonts)

    def put_DeviceValue(self):
        self.caption(self["DeviceValue"])

    def put_LabelCaption(self):
        self.caption(self["LabelCaption"])

    def put_LabelFontBold(self):
        self["lbl_Label.FontBold"] = self["LabelFontBold"]
        self.measure()

    def put_LabelFontItalic(self):
        self["lbl_Label.FontItalic"] = self["LabelFontItalic"]
        self.measure()

    def colors(self):
        self["lbl_Label.ForeColor"] = RED if self["CFail"] else BLACK
        self["lbl_Label.FontBold"] = self["CFail"]
        self.measure()
        self.layout()

    def layout(self):
        self["img_State.Left"] = self["lbl_Label.Left"] + self["lbl_Label.Width"] + 100

    def loaded(self):
        self.put_LabelCaption()
        self.put_LabelFontItalic()
        self.colors()
        self.enabled()


class Image(Model):
    CLASS = "ctx_ZorImage"
    STORED = SHARED + (" StatusText MsgStatusNotOK MsgStatusOK DeviceType DeviceVersion RegisterType EnableControl ReadOnly"
                       " UseAuxIcon")
    RUNTIME = "MessageHeader MsgUndefined MsgBit"
    DEFAULTS = {"MsgDefault": "Detailed Information about ", "StatusText": "Status", "MsgStatusNotOK": "Status Not OK",
                "MsgStatusOK": "- No Information. Status OK."}
    FRESH = {"MsgDefault": "Status OK", "StatusText": "", "MsgStatusOK": "- No Information. Status OK"}
    EVENTS = "imageClick imageDblClick imageMouseDown imageMouseUp"
    MESSAGES = ("MsgCfail", "MsgStatusNotOK", "MsgDataNotAvailable", "MsgDefault", "MsgDeviceTagNotFound")
    OWN_EFFECTS = {"CFail": "status", "WaitingForData": "status enabled", "ReadOnly": "", "RegisterType": "",
                   **names("DeviceValue MsgStatusNotOK MsgStatusOK", "status")}
    OWN_SILENT = ("MsgStatusNotOK", "MsgStatusOK", "MsgUndefined", "MsgBit", "ReadOnly")
    PREFIX = {"img_State": "image"}
    SHOWN, MENU_OVER = ("img_State",), ()
    WIDGETS = {"img_State": PLACE + " Picture ToolTipText"}
    ACTIONS = {"img_State": "click dblclick rightclick click click", "Surface": "click rightclick"}
    OFTEN = ("DeviceValue", "CFail", "WaitingForData", "UseAuxIcon", "MsgUndefined", "MsgBit")
    VALUES = {"DeviceValue": (0, 0, 1, 5, 9, -1, -2147483648, 2147483647)}

    def created(self):
        self.count, self.rows = 0, []
        self.s.update({"MessageHeader": "Qex", "MsgUndefined": "", "MsgBit": "", "img_State.Visible": True,
                       "img_State.Picture": 6})

    def layout(self):
        self["img_State.Width"], self["img_State.Height"] = self["Surface.Width"], self["Surface.Height"]

    def loaded(self):
        self.enabled()

    def status(self):
        if not self.supported():
            return
        self["img_State.ToolTipText"] = self["MessageHeader"]
        row = self.state()
        well = self["DeviceValue"] == 0
        plain = (8 if well else 7) if self["UseAuxIcon"] else (6 if well else 5)
        self["img_State.Picture"] = row[3] if row else 4 if self["WaitingForData"] else plain

    def enabled(self):
        self["img_State.Enabled"] = self["EnableControl"] and not self["WaitingForData"]

    def explain(self):
        title = self["StatusText"] + " - " + self["MessageHeader"]
        row = self.state()
        begin = self["MsgDefault"] + self["MessageHeader"] + ":\r\n"
        if row:
            self.box(row[5], row[4], title)
        elif self["DeviceValue"] == 0:
            self.box("information", begin + "\r\n" + self["MsgStatusOK"], title)
        else:
            for bit in range(32):
                if self["DeviceValue"] >> bit & 1 and self.count >= 0:
                    named = next((text for text, number in self.rows[:self.count] if number == bit), None)
                    unnamed = f"{self['MsgUndefined']} ({self['MsgBit']} {bit})"
                    begin += "\r\n- " + (unnamed if named is None else named)
            self["MsgStatusNotOK"] = begin
            self.box("exclamation", begin + "\r\n", title)
        self.emit("imageClick")

    def MaxEntries(self, count):
        self.count = count
        if count > 0:
            self.rows = [("", -1)] * count

    def AddBitFieldEntry(self, text, bit, index):
        if not 0 <= index < self.count:
            return self.out.append("error 9")
        self.rows[index] = text, bit
        return None

    def calls(self, random):
        add = ("AddBitFieldEntry", random.choice(self.TEXTS), random.randint(-1, 32), random.randint(-1, 4))
        return ("MaxEntries", random.randint(-2, 6)), add, add


CONTROLS = {"label": Label, "image": Image}
