"""A print server of the journey's own, with queues that print into files. It ends with the desktop."""
import grp
import os
import pwd
import shutil

from desktop import until

EDGE = 6  # points at each side of the sheet that the printers cannot print on

# They take PDF as it is, and would rather have another paper.
PPD = f'''*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "JOURNEY.PPD"
*Manufacturer: "Journey"
*Product: "(Journey)"
*PSVersion: "(3010.000) 0"
*ModelName: "Journey"
*ShortNickName: "Journey"
*NickName: "Journey"
*cupsVersion: 2.3
*cupsFilter: "application/pdf 0 -"
*ColorDevice: True
*DefaultColorSpace: RGB
*LanguageLevel: "3"
*OpenUI *PageSize/Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: Letter
*PageSize Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Size: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: Letter
*PageRegion Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter/Letter: "{EDGE} {EDGE} {612 - EDGE} {792 - EDGE}"
*ImageableArea A4/A4: "{EDGE} {EDGE} {595 - EDGE} {842 - EDGE}"
*DefaultPaperDimension: Letter
*PaperDimension Letter/Letter: "612 792"
*PaperDimension A4/A4: "595 842"
*DefaultResolution: 600dpi
'''

QUEUE = '''<{kind} {name}>
Info {name}
DeviceURI journey://{output}
State Idle
Accepting Yes
Shared No
JobSheets none none
ErrorPolicy stop-printer
</{kind}>
'''

# What brings a job to its printer: here the pages into a file; then its number, its title and how many copies into another.
BACKEND = '''#!/bin/sh
set -e
[ $# -gt 0 ] || exit 0
output=${DEVICE_URI#journey://}
cat "$6" > "$output"
printf '%s\\n' "$1" "$3" "$4" > "$output.new"
mv "$output.new" "$output.job"
'''

CONFIGURATION = '''LogLevel debug
Listen {socket}
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
'''

FILES = '''User {user}
Group {group}
SystemGroup root
ServerRoot {root}
ServerBin {root}/bin
RequestRoot {root}/spool
CacheDir {root}/cache
StateDir {root}/state
TempDir {root}/spool/tmp
AccessLog {root}/access.log
ErrorLog {root}/error.log
PageLog {root}/page.log
'''


class PrintServer:
    """Print queues of these names, the first one the default; programs that are started from now on see them."""

    def __init__(self, desktop, *names):
        self.root = desktop.temp / "cups"
        self.socket = self.root / "socket"
        for folder in ("ppd", "spool/tmp", "cache/rss", "state/certs", "bin/backend", "printed"):
            (self.root / folder).mkdir(parents=True)
        (self.root / "bin" / "daemon").symlink_to("/usr/lib/cups/daemon")
        self.desktop = desktop
        self.start(*names)

    def start(self, *names):
        self.write_configuration(names)
        program = shutil.which("cupsd", path=f"{os.environ['PATH']}:/usr/sbin")
        assert program, "there is no print server on this machine"
        self.process = self.desktop.start([program, "-f", "-c", str(self.root / "cupsd.conf"),
                                           "-s", str(self.root / "cups-files.conf")])
        os.environ["CUPS_SERVER"] = str(self.socket)
        until("the print server is there", self.is_there)

    def write_configuration(self, names):
        mine = grp.getgrgid(os.getgid()).gr_name
        user = pwd.getpwuid(os.geteuid()).pw_name
        if user == "root":  # as whom it refuses to print
            user = mine = "lp"
        (self.root / "cupsd.conf").write_text(CONFIGURATION.format(socket=self.socket), encoding="utf-8")
        (self.root / "cups-files.conf").write_text(FILES.format(user=user, group=mine, root=self.root), encoding="utf-8")
        (self.root / "printers.conf").write_text("".join(
            QUEUE.format(kind="Printer" if place else "DefaultPrinter", name=name, output=self.output(name))
            for place, name in enumerate(names)), encoding="utf-8")
        backend = self.root / "bin" / "backend" / "journey"
        backend.write_text(BACKEND, encoding="utf-8")
        backend.chmod(0o700)  # by which it is run as who has started the server
        for name in names:
            (self.root / "ppd" / f"{name}.ppd").write_text(PPD, encoding="utf-8")

    def output(self, name):
        """The file that what is printed on a queue goes to; each job in the place of the one before."""
        return self.root / "printed" / f"{name}.pdf"

    def is_there(self):
        assert self.process.poll() is None, "the print server didn't stay:\n" + self.said()
        return self.socket.exists()

    def stop(self):
        self.process.terminate()
        self.process.wait()

    def said(self):
        log = self.root / "error.log"
        return log.read_text(encoding="utf-8", errors="replace")[-3000:] if log.exists() else "nothing"

    def printed(self, name):
        """Waits for the next job on a queue. @return the path of its pages, its number, its title, how many copies"""
        path = self.output(name)
        job = path.with_name(path.name + ".job")
        until(f"a job on {name}", job.exists)
        number, title, copies = job.read_text(encoding="utf-8").splitlines()
        job.unlink()
        return path, int(number), title, int(copies)
