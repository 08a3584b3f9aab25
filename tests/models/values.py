"""Values, defaults and their notation, and the check of versions."""

import functools

NOT_FOUND_TEXT = "Identifier Look Up Failed"


def names(text, value):
    return dict.fromkeys(text.split(), value)


# A stored property's default in the bag, by name; a class says where its own differs.
DEFAULTS = {
    **names("CFail InvalidEntry InvalidValue DataModified WaitingForData DataChanged DataNotAvailable DeviceTagNotFound"
            " DeviceVerNotSupported DeviceTypeNotSupported ReadOnly UseAuxIcon LabelFontItalic", False),
    **names("InvalidEntryEnable UnitEnable IconEnable EnableControl EnableValues", True),
    **names("MinValue MaxValue MinParamValue MaxParamValue UnitType DeviceValue OutputValue DeviceUnit OutputUnit"
            " DefaultUnit RegisterType BitFieldEntryIndex EnumEntryValue", 0),
    **names("DeviceTypeSupported DeviceMinVersionSupported DeviceMaxVersionSupported DeviceTag DeviceType DeviceVersion"
            " MsgDefault UnitLabelCaption MinPrefix MaxPrefix", ""),
    "MsgCfail": "Communication Failure !", "MsgDataChanged": "Data Changed by other user ",
    "MsgDataNotAvailable": "Data Not Available", "MsgDeviceTagNotFound": NOT_FOUND_TEXT,
    "MsgInvalidValue": "Invalid Entry",
}
KEYS = {"DeviceMinVersionSupported": "DeviceMinVerSupported", "DeviceMaxVersionSupported": "DeviceMaxVerSupported",
        "NumberOfDigits": "NumberofDigits"}
# What a write runs, by name.
EFFECTS = {
    "CFail": "status colors enabled", "DataNotAvailable": "status", "DataChanged": "status",
    "DeviceTagNotFound": "status enabled", "WaitingForData": "enabled", "EnableControl": "enabled",
    "ReadOnly": "colors", "RegisterType": "colors", "DataModified": "colors", "DeviceType": "check_type",
    "DeviceVersion": "check_version", "DeviceTypeNotSupported": "support", "DeviceVerNotSupported": "support",
    **names("MsgCfail MsgDataNotAvailable MsgDataChanged MsgDeviceTagNotFound MsgDefault MsgInvalidValue", "status"),
}
SILENT = set("MessageHeader DataModified ModifiedValue OtherUserValue".split())

PLACE = "Left Top Width Height Visible Enabled"
DESIGNED = "Left Top Width Height BackColor ForeColor".split()
# Where the parts of a new control are, as they were drawn; what its font decides is asked from the platform.
_ICON, _ASKED = (285, 285), None
_TEXT = {"Surface": (3000, 315), "txt_TextBox": (0, 0, 1695, 315), "lbl_Units": (_ASKED, 60, 0, 195)}
PLACES = {
    "ctx_ZorTextBox": {**_TEXT, "img_State": (1895, 15, *_ICON)},
    "ctx_ZorUpDown": {**_TEXT, "upd_UpDown": (1695, 0, 240, 315), "img_State": (2135, 15, *_ICON)},
    "ctx_ZorSlider": {"Surface": (3000, 770), "sld_Slider": (0, 0, 2585, 510), "img_State": (2685, 25, *_ICON),
                      **{f"lbl_{end}{part}": (_ASKED, 515, _ASKED, 195) for end in ("Min", "Max")
                         for part in ("Prefix", "Value", "Unit")}},
    "ctx_ZorComboBox": {"Surface": (2415, 315), "cbo_ComboBox": (0, 0, 2000, 315), "img_State": (2100, 25, *_ICON)},
    "ctx_ZorListBox": {"Surface": (2415, 1215), "lst_ListBox": (0, 0, 2000, 1215), "img_State": (2100, 475, *_ICON)},
    "ctx_ZorCheckBox": {"Surface": (2000, 330), "chk_CheckBox": (0, 0, _ASKED, 330), "img_State": (_ASKED, 25, *_ICON)},
    "ctx_ZorOptionButton": {"Surface": (2000, 315), "opt_OptionButton": (0, 0, _ASKED, 315), "img_State": (_ASKED, 20, *_ICON)},
    "ctx_ZorLabel": {"Surface": (1800, 285), "lbl_Label": (0, 45, _ASKED, 195), "img_State": (_ASKED, 0, *_ICON)},
    "ctx_ZorImage": {"Surface": (480, 480), "img_State": (0, 0, 480, 480)},
}


def places(control):
    return {f"{part}.{aspect}": float(number) for part, numbers in PLACES[control].items()
            for aspect, number in zip(("Left", "Top", "Width", "Height")[-len(numbers):], numbers) if number is not None}


BEGIN = {**names("Visible Enabled", True), **names("FontBold FontItalic Locked", False), **names("Caption Text ToolTipText", ""),
         **names("SelStart SelLength Picture Value", 0)}


class Colour(str):
    """Printed as it stands."""


YELLOW, RED, BLACK = Colour("#FFFF00"), Colour("#FF0000"), Colour("ButtonText")
FACE, WINDOW = Colour("ButtonFace"), Colour("WindowBackground")


class Unsaid(Exception):
    """What a model does not say, as of handlers that go on calling each other: the history ends before."""


@functools.lru_cache(100_000)
def quoted(text):
    for plain, escaped in ("\\", "\\\\"), ('"', '\\"'), ("\r", "\\r"), ("\n", "\\n"), ("\t", "\\t"):
        text = text.replace(plain, escaped)
    return f'"{text}"'


# How a value is written on the console, by its kind: the most frequent thing that histories do.
NOTATION = {str: quoted, bool: str, int: str, float: "{:.15g}".format, Colour: str,
            list: lambda values: "[" + ", ".join(map(written, values)) + "]"}


def written(value):
    """A value as the console writes it."""
    return NOTATION[type(value)](value)


def padded(version):
    at = next((i for i, c in enumerate(version) if c not in "0123456789"), None)
    if at is None:
        return version
    return version[:at].rjust(max(2, at), "0")[-max(2, at):] + version[at] + version[at + 1:].rjust(2, "0")


def type_index(supported, device):
    if not supported.strip(" "):
        return 0
    entries = [entry.strip(" ").upper() for entry in supported.split(",")]
    return entries.index(device.strip(" ").upper()) if device.strip(" ").upper() in entries else -1


def version_fails(minimum, maximum, version, index):
    def limit(entries):
        if not entries.strip(" "):
            return ""
        entries = entries.split(",")
        return padded(entries[index].strip(" ").upper()) if index < len(entries) else None

    version, low, high = padded(version.strip(" ").upper()), limit(minimum), limit(maximum)
    return low is None or high is None or (low and version < low) or bool(high and high < version)
