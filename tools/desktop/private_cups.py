"""A print server of our own: one CUPS on this machine's loopback, with one queue to PDF.

Its configuration, spool and log lie in a folder of the caller; the system's own print server, its
queues and /etc/cups are neither used nor touched.

The queue has a small backend of its own instead of the packaged cups-pdf, because that one reads
its settings from /etc/cups only, insists on running as root and writes into home directories.
"""

import os
import pathlib
import shutil
import socket
import subprocess
import textwrap

from desktop import wait_for

QUEUE = "Scorvane-Test"
SYSTEM_HELPERS = pathlib.Path("/usr/lib/cups")

# Called by the server as: backend job-id user title copies options [file]. The finished document
# appears under its name in one step, so that whoever waits for it never sees half of it.
BACKEND = """#!/bin/sh
[ $# -eq 0 ] && { echo 'direct testpdf "Unknown" "PDF printer of the tools"'; exit 0; }
cat ${6+"$6"} > "@OUTPUT@/$1.ps" || exit 1
gs -q -dNOPAUSE -dBATCH -dSAFER -sDEVICE=pdfwrite -dAutoRotatePages=/None \\
  -sOutputFile="@OUTPUT@/$1.part" "@OUTPUT@/$1.ps" < /dev/null >&2 || exit 1
mv "@OUTPUT@/$1.part" "@OUTPUT@/$1.pdf"
"""

FILES_CONF = """ServerRoot @ROOT@/etc
ServerBin @ROOT@/lib
RequestRoot @ROOT@/spool
TempDir @ROOT@/spool/tmp
CacheDir @ROOT@/cache
StateDir @ROOT@/run
AccessLog @ROOT@/log/access_log
ErrorLog @ROOT@/log/error_log
PageLog @ROOT@/log/page_log
Printcap
SyncOnClose No
"""

CUPSD_CONF = """Listen 127.0.0.1:@PORT@
LogLevel info
Browsing No
WebInterface No
DefaultAuthType None
PreserveJobHistory Yes
<Location />
  Order allow,deny
  Allow from 127.0.0.1
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

PRINTERS_CONF = """<DefaultPrinter @QUEUE@>
Info PDF printer of Scorvane's tools
DeviceURI testpdf:/
State Idle
Accepting Yes
Shared No
JobSheets none none
ErrorPolicy abort-job
</DefaultPrinter>
"""

# A plain PostScript printer for letter paper, 600 dots an inch, whose paper has margins.
PPD = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "SCORVANE.PPD"
*Manufacturer: "Scorvane"
*Product: "(Test Printer)"
*ModelName: "Scorvane Test Printer"
*ShortNickName: "Scorvane Test Printer"
*NickName: "Scorvane Test Printer"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*DefaultResolution: 600dpi
*cupsFilter: "application/postscript 0 -"
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: Letter
*PageSize Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: Letter
*PageRegion Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter/US Letter: "18 18 594 774"
*DefaultPaperDimension: Letter
*PaperDimension Letter/US Letter: "612 792"
*DefaultFont: Courier
*Font Courier: Standard "(002.004S)" Standard ROM
"""


def missing():
    """What this machine lacks to run the print server; an empty list when nothing is missing."""
    return [name for name in ("cupsd", "gs", "pdftotext") if _find(name) is None]


class PrivateCups:
    """The running server. `with PrivateCups(folder) as printer:` starts and stops it."""

    def __init__(self, folder):
        self.root = pathlib.Path(folder).resolve()
        self.output = self.root / "output"
        self.port = _free_port()
        self.process = None

    def environment(self):
        """What a program needs in its environment to see this server and no other."""
        return {
            "CUPS_SERVER": f"127.0.0.1:{self.port}",
            "HOME": str(self.root / "home"),  # without the user's own default printer
        }

    def __enter__(self):
        self._write_files()
        with open(self.root / "log/cupsd", "wb") as log:
            self.process = subprocess.Popen(
                [_find("cupsd"), "-f", "-c", self.root / "etc/cupsd.conf", "-s", self.root / "etc/cups-files.conf"],
                stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        try:
            wait_for(self._answers, "the print server to answer")
        except Exception:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()

    def documents(self):
        """The PDF files printed so far, in the order of their jobs."""
        return sorted(self.output.glob("*.pdf"), key=lambda path: int(path.stem))

    def wait_for_document(self, number):
        """Waits until `number` documents are printed; returns the last of them."""
        wait_for(lambda: len(self.documents()) >= number, f"printed document {number}; see {self.root}/log")
        return self.documents()[number - 1]

    def _answers(self):
        if self.process.poll() is not None:
            raise RuntimeError(f"cupsd ended with {self.process.returncode}; see {self.root}/log")
        with socket.socket() as connection:
            return connection.connect_ex(("127.0.0.1", self.port)) == 0

    def _write_files(self):
        shutil.rmtree(self.root, ignore_errors=True)
        for name in ("etc/ppd", "lib/backend", "spool/tmp", "cache", "run", "log", "output", "home"):
            (self.root / name).mkdir(parents=True)
        # The server's own helper that starts every other one; the rest of the folder stays ours.
        (self.root / "lib/daemon").symlink_to(SYSTEM_HELPERS / "daemon")
        self._write("etc/cups-files.conf", FILES_CONF)
        self._write("etc/cupsd.conf", CUPSD_CONF)
        self._write("etc/printers.conf", PRINTERS_CONF)
        self._write(f"etc/ppd/{QUEUE}.ppd", PPD)
        # Closed to others, so that a server started by root runs it as root: the folder may lie
        # where the server's own unprivileged user cannot go.
        self._write("lib/backend/testpdf", BACKEND, 0o700)

    def _write(self, name, text, mode=0o600):
        for key, value in {"ROOT": self.root, "OUTPUT": self.output, "PORT": self.port, "QUEUE": QUEUE}.items():
            text = text.replace(f"@{key}@", str(value))
        (self.root / name).write_text(text)
        (self.root / name).chmod(mode)


def pages_of(document, character_width):
    """The lines of each page of a PDF that have text, blanks kept, from the printer's left edge on.
    `character_width` is that of its fixed-pitch font in points."""
    text = subprocess.run(["pdftotext", "-layout", "-fixed", str(character_width), document, "-"], check=True,
                          capture_output=True).stdout.decode("utf-8")
    # The two hyphens share one glyph, of which the tool knows the other name.
    pages = text.replace("\u00ad", "-").split("\f")[:-1]
    return [[line for line in textwrap.dedent(page).splitlines() if line] for page in pages]


def _find(program):
    return shutil.which(program, path=os.environ.get("PATH", "") + ":/usr/sbin:/sbin")


def _free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]
