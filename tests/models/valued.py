"""What the controls with a value have in common that goes from the device to the operator and back."""

from model import Model, way_of_a_value
from values import BLACK, FACE, RED, WINDOW, YELLOW

BINDING = " DataChanged DataNotAvailable DeviceTypeSupported DeviceMinVersionSupported DeviceMaxVersionSupported DeviceTag" \
          " DeviceTagNotFound DeviceVerNotSupported DeviceTypeNotSupported MsgCfail MsgDataChanged MsgDataNotAvailable"
FIVE = ("MsgCfail", "MsgDataNotAvailable", "MsgDataChanged", "MsgDefault", "MsgDeviceTagNotFound")


class Valued(Model):
    """A control with a value that comes from the device and goes back."""

    READ_AS = {"ModifiedValue": "OutputValue"}

    def created(self):
        self.reference, self["OtherUserValue"] = 0, 0

    def put_OtherUserValue(self):
        self.status()

    def other(self):
        return self["OtherUserValue"]

    def reference_text(self):
        return self.reference

    def changed_texts(self):
        return (f"{self['MsgDataChanged']} : {self.other()} , {self.reference_text()}",) * 2

    # --- The way of a value

    @way_of_a_value
    def put_DeviceValue(self):
        yield from self.take(self["DeviceValue"], True)
        self.assign(self["DeviceValue"])
        yield
        self["DataModified"] = False
        self.colors()
        self.status()

    @way_of_a_value
    def put_ModifiedValue(self):
        value = self["ModifiedValue"]
        yield from self.take(value, False)
        self.assign(value)
        yield
        self.taken()
        self.colors()
        self.status()

    def take(self, value, from_device):
        """Shows a value of the device's, or of the host's for the operator."""
        raise NotImplementedError

    def taken(self):
        pass

    def assign(self, value):
        self["OutputValue"] = value
        self.emit("OutputValueChange")

    def modify(self, is_modified):
        """Whether what is shown is an edit, which the host hears."""
        self["DataModified"] = is_modified
        if is_modified:
            self.emit("DataModifiedSetTrue")

    # --- Looks

    def colors(self):
        face, modified = self.FACE, self["DataModified"]
        self[face + ".ForeColor"] = RED if self["CFail"] else BLACK
        self[face + ".FontBold"] = self["CFail"] or modified
        self.paint(FACE if self.read_only() else YELLOW if modified else WINDOW)

    def paint(self, colour):
        self[self.FACE + ".BackColor"], self[self.FACE + ".Locked"] = colour, self.locked()
