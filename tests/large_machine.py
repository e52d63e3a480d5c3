"""A registry export of one board with as many ports as wanted, or with ghosts: devices of ports that have gone.

    large_machine.py PORTS [ghosts] >MACHINE.reg"""
import re
import pathlib
import sys

SAMPLE = pathlib.Path(__file__).resolve().parents[1] / "host/machines/sample.reg"
FIRST = "5&2B7D41E6&0&01"  # the board's first port


def large_machine(ports, ghosts=False):
    """The sample machine with more ports on its first board, each made like the first."""
    sample = SAMPLE.read_text()
    board, rest = sample.split('"BoardNrController"=dword:0000000e', 1)
    port = re.search(r"^\[[^\n]*KVRBUS.UART." + FIRST + r"\]\n.*?(?=^\[[^\n]*UART.5&2B7D41E6&0&02\])", sample, re.S | re.M)[0]
    entry = re.search(r"(^\[[^\n]*##\?#KVRBUS#UART#" + FIRST + r"#.*?)(?=^\[[^\n]*##\?#KVRBUS#UART#5&2B7D41E6&0&02#)", sample,
                      re.S | re.M)[0]
    if ghosts:
        entry = entry.replace('"Linked"=dword:00000001', '"Linked"=dword:00000000')
    numbers = range(14, 14 if ghosts else ports + 1)
    for key, value in (("SERIALCOMM]", '"\\\\Device\\\\Large{0}"="COM{0}"'), ("Version\\Ports]", '"COM{0}:"="9600,n,8,1"')):
        rest = rest.replace(key + "\n", "\n".join([key, *map(value.format, numbers)]) + "\n")
    made = []
    for number in range(14, ports + 1):
        own = f"5&2B7D41E6&0&{number:05}"
        here = port.replace(FIRST, own).replace("COM7", f"COM{number}")
        made.append(re.sub(r'"ChlNumber"=dword:0*1\b', f'"ChlNumber"=dword:{number:08x}', here))
        made.append(entry.replace(FIRST, own))
    return board + f'"BoardNrController"=dword:{ports + 1:08x}' + rest + "\n" + "\n".join(made)


if __name__ == "__main__":
    print(large_machine(int(sys.argv[1]), "ghosts" in sys.argv))
