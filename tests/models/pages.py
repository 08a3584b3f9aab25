"""The four property pages: what their fields show, what marks them as changed, and what Apply writes into the control."""

from steps import Steps
from units import is_valid, reading
from values import names, written

START = {0: 0, 1: 8, 2: 15, 3: 20, 4: 32, 5: 33, 6: 36, 7: 37, 8: 38, 9: 42, 10: 46, 11: 52}
FIELDS = {"txt_DeviceType": "DeviceTypeSupported", "txt_MinVersion": "DeviceMinVersionSupported",
          "txt_MaxVersion": "DeviceMaxVersionSupported", "cbo_EntryType": "EntryType", "cbo_RegisterType": "RegisterType",
          "txt_DeviceTag": "DeviceTag", "chk_IconEnable": "IconEnable", "chk_UnitEnable": "UnitEnable",
          "cbo_UnitType": "UnitType"}
NUMBERS = {"txt_MaxLength": ("MaxLength", "upd_MaxLength", 1, 255),
           "txt_NoOfDigits": ("NumberOfDigits", "upd_NoOfDigits", 0, 15)}
CHOICES = {"cbo_EntryType": 2, "cbo_RegisterType": 2, "cbo_UnitType": 12}
ASPECT = {"txt": "Text", "cbo": "ListIndex", "chk": "Value", "upd": "Value"}
FRESH = {**names("DeviceTypeSupported DeviceMinVersionSupported DeviceMaxVersionSupported DeviceTag", ""),
         "EntryType": 1, "IconEnable": True, "UnitEnable": True, "MaxLength": 10, "NumberOfDigits": 3,
         **names("RegisterType UnitType OutputUnit DefaultUnit", 0)}
POOL = {**names("DeviceTypeSupported DeviceMinVersionSupported DeviceMaxVersionSupported DeviceTag", ("", "A", "1.5,2")),
        "EntryType": (0, 1), "IconEnable": (True, False), "UnitEnable": (True, False), "MaxLength": (10, 0, 300, 20),
        "NumberOfDigits": (3, 0, 15, 16, -1), "RegisterType": (0, 1, 7), "UnitType": (0, 2, 10, 11, 13)}


class Page(Steps):
    UNIT = "DeviceUnit OutputUnit DefaultUnit".split()

    def __init__(self, form):
        self.form, self.focused, self.settled = form, None, set()
        units = "cbo_UnitType" in self.FIELDS
        self.edited = [FIELDS.get(field) or NUMBERS[field][0] for field in self.FIELDS]
        self.control = {name: FRESH[name] for name in self.edited}
        if units:
            self.control.update({**names("OutputUnit DefaultUnit", 0), "DeviceUnit": self.DEVICE_UNIT})
        self.numbers = [field for field in self.FIELDS if field in NUMBERS]
        self.page, self.out, self.notices = {}, [], []
        self.widgets = [*self.FIELDS, *(NUMBERS[field][1] for field in self.numbers)]
        self.select()

    # --- What the page shows

    def select(self):
        for field in self.FIELDS:
            if field in NUMBERS:
                name, button, low, high = NUMBERS[field]
                self.page[button] = min(max(self.control[name], low), high)
                self.page[field] = str(self.page[button])
            else:
                value = self.control[FIELDS[field]]
                known = field[:3] != "cbo" or 0 <= value < CHOICES[field]
                self.page[field] = int(value) if field[:3] == "chk" else value if known else -1
        self.settled, self.changed = set(), False

    def put(self, name, value):
        self.control[name] = value
        self.notices.append(name)

    def apply(self):
        # A number counts when its field is left, as by Apply; the leaving that follows it is no second one.
        if self.focused in self.numbers:
            self.left(self.focused)
            self.settled.add(self.focused)
        unit_enable = self.page.get("chk_UnitEnable")
        for field in self.FIELDS:
            if field in NUMBERS:
                self.put(NUMBERS[field][0], self.page[NUMBERS[field][1]])
            elif field not in ("chk_UnitEnable", "cbo_UnitType"):
                value = self.page[field]
                if value != -1:
                    self.put(FIELDS[field], bool(value) if field[:3] == "chk" else value)
        if unit_enable is not None:
            self.put("UnitEnable", bool(unit_enable))
            kind = self.page["cbo_UnitType"] if unit_enable else 11
            if kind != -1:
                self.put("UnitType", kind)
                for unit in self.UNIT:
                    self.put(unit, START[kind])
        self.changed = False

    def left(self, field):
        if field in self.settled:
            return self.settled.discard(field)
        _, button, low, high = NUMBERS[field]
        text = self.page[field]
        number = reading(text, ".", ",") if is_valid(text, ".", ",") else None
        if number is None:
            self.page[field] = str(self.page[button])
        elif not low <= number <= high:
            self.page[field] = str(high if number > high else low)
        else:
            self.changed |= self.page[button] != round(number)
            self.page[button] = round(number)

    # --- What the designer does

    def do(self, widget, action, *arguments):
        if action == "blur":
            if self.focused == widget:
                self.go_to(None)
            return
        if widget == "cbo_UnitType" and not self.page["chk_UnitEnable"]:
            self.out.append("refused disabled")
            return
        if widget[:3] != "upd":
            self.go_to(widget)
        getattr(self, action)(widget, *arguments)

    def go_to(self, widget):
        if self.focused in self.numbers and self.focused != widget:
            self.left(self.focused)
        self.focused = widget

    def focus(self, widget):
        pass

    def edit(self, widget, text):
        if text or self.page[widget]:
            self.page[widget], self.changed = text, True
            self.settled.discard(widget)

    def choose(self, widget, index):
        self.changed |= index != self.page[widget]
        self.page[widget] = index

    def toggle(self, widget):
        self.page[widget], self.changed = 1 - self.page[widget], True
        if widget == "chk_UnitEnable" and self.page[widget] and "cbo_EntryType" in self.page:
            self.page["cbo_EntryType"] = 1

    def spin(self, widget, way):
        field = next(field for field in self.numbers if NUMBERS[field][1] == widget)
        _, _, low, high = NUMBERS[field]
        value = min(max(self.page[widget] + way, low), high)
        self.changed |= value != self.page[widget] or self.page[field] != str(value)
        self.page[widget], self.page[field] = value, str(value)

    def up(self, widget):
        self.spin(widget, 1)

    def down(self, widget):
        self.spin(widget, -1)

    # --- Histories

    @classmethod
    def opening(cls):
        return [f"new {cls.CONTROL} c", f"page {cls.PAGE} p c"]

    def play(self, step):
        self.out, self.notices = [], []
        kind, *rest = step
        if kind == "put":
            self.put(*rest)
            done = [(f"put c.{rest[0]} {written(rest[1])}", [])]
        elif kind == "do" and rest[1] == "edit":
            self.do(*rest)
            done = [(f"do p.{rest[0]} select 0 99", []), (f"do p.{rest[0]} paste {written(rest[2])}", [])]
        elif kind == "do":
            self.do(*rest)
            done = [(" ".join([f"do p.{rest[0]} {rest[1]}", *map(str, rest[2:])]), self.out)]
        else:
            getattr(self, kind)()
            done = [({"select": "select p c", "apply": "apply p"}[kind], [])]
        shown = ["p.Changed", *(f"p.{widget}.{ASPECT[widget[:3]]}" for widget in self.widgets)]
        values = [self.changed, *(self.page[widget] for widget in self.widgets)]
        if "cbo_UnitType" in self.page:
            shown.append("p.cbo_UnitType.Enabled")
            values.append(bool(self.page["chk_UnitEnable"]))
        seen = [("get " + " ".join(shown), [" ".join(map(written, values))]),
                ("get " + " ".join("c." + name for name in self.control), [" ".join(map(written, self.control.values()))]),
                ("notices c", [" ".join(self.notices) or "-"])]
        return done, seen

    def random_steps(self, random):
        chance = random.random()
        if chance < 0.15:
            name = random.choice(self.edited)
            return [("put", name, random.choice(POOL[name]))]
        if chance < 0.3:
            return [("apply",)]
        if chance < 0.35:
            return [("select",)]
        widget = random.choice(self.widgets)
        if random.random() < 0.15 and widget[:3] != "upd":
            return [("do", widget, random.choice(("focus", "blur")))]
        if widget[:3] == "txt":
            texts = ("30", "abc", "256", "0", "1e2", "", "5", "12.5") if widget in NUMBERS else ("", "A", "1.5,2")
            return [("do", widget, "edit", random.choice(texts))]
        if widget[:3] == "cbo":
            return [("do", widget, "choose", random.randrange(CHOICES[widget]))]
        return [("do", widget, random.choice(("up", "down")) if widget[:3] == "upd" else "toggle")]


BINDING = ("txt_DeviceType", "txt_MinVersion", "txt_MaxVersion")
ENDING = ("cbo_RegisterType", "txt_DeviceTag")


def page(name, control, fields, unit=0):
    return type(name, (Page,), {"PAGE": "prp_Zor" + name, "CLASS": "page " + name, "CONTROL": control, "FIELDS": fields,
                                "DEVICE_UNIT": unit})


UNITS = ("chk_IconEnable", "chk_UnitEnable", "cbo_UnitType")
CONTROLS = {
    "text_box_page": page("TextBoxGeneral", "ctx_ZorTextBox",
                          (*BINDING, "txt_MaxLength", "txt_NoOfDigits", "cbo_EntryType", *ENDING, *UNITS), 2),
    "device_page": page("UpDSldDevice", "ctx_ZorUpDown", (*BINDING, *ENDING, *UNITS)),
    "others_page": page("OtherControls", "ctx_ZorListBox", (*BINDING, *ENDING, "chk_IconEnable")),
    "image_page": page("Image", "ctx_ZorImage", (*BINDING, *ENDING)),
}
