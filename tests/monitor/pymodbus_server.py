"""A Modbus TCP server by others: registers 0 to 199 hold their own address, or that and argument 2. Coils and discrete inputs are set at odd addresses. Prints "ready" when it listens."""
import sys
import threading

from pymodbus.datastore import ModbusSequentialDataBlock, ModbusServerContext, ModbusSlaveContext
from pymodbus.device import ModbusDeviceIdentification
from pymodbus.server import StartTcpServer

more = int(sys.argv[2]) if len(sys.argv) > 2 else 0
block = lambda: ModbusSequentialDataBlock(0, list(range(more, more + 200)))
bits = lambda: ModbusSequentialDataBlock(0, [False, True] * 100)
slave = ModbusSlaveContext(hr=block(), ir=block(), co=bits(), di=bits(), zero_mode=True)
context = ModbusServerContext(slaves={1: slave, 3: slave}, single=False)


def announce():
    """Once the port can be reached."""
    import socket
    import time

    while True:
        try:
            socket.create_connection(("127.0.0.1", int(sys.argv[1])), 1).close()
            print("ready", flush=True)
            return
        except OSError:
            time.sleep(0.05)


threading.Thread(target=announce, daemon=True).start()
identity = ModbusDeviceIdentification(info_name={"VendorName": "Maker", "ProductCode": "P-1", "MajorMinorRevision": "2.0"})
StartTcpServer(context=context, identity=identity, address=("127.0.0.1", int(sys.argv[1])), allow_reuse_address=True)
