"""Chromium without a window, driven over its debugging pipe with the standard library alone."""

import base64
import fcntl
import json
import os
import select
import shutil
import subprocess
import tempfile
import time

PATIENCE = 60  # seconds until an answer counts as missing
FLAGS = ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync",
         "--hide-scrollbars", "--remote-debugging-pipe"]
# What the browser is told of a key beside its name.
KEY_CODES = {"Tab": 9, "Enter": 13, "PageUp": 33, "PageDown": 34, "End": 35, "Home": 36,
             "ArrowLeft": 37, "ArrowRight": 39}


class Browser:
    """One browser with one page; what the page says and asks for is kept."""

    def __init__(self):
        self._profile = tempfile.mkdtemp()
        to_browser, self._write = os.pipe()
        self._read, from_browser = os.pipe()
        # Out of the way of the two numbers that they get in the browser.
        ends = [fcntl.fcntl(end, fcntl.F_DUPFD, 10) for end in (to_browser, from_browser)]
        os.close(to_browser)
        os.close(from_browser)

        def hand_over():
            os.dup2(ends[0], 3)
            os.dup2(ends[1], 4)

        self._process = subprocess.Popen(
            ["chromium-headless-shell", *FLAGS, f"--user-data-dir={self._profile}", "about:blank"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            preexec_fn=hand_over, pass_fds=(3, 4))
        for end in ends:
            os.close(end)
        self._bytes = b""
        self._number = 0
        self._session = None
        self.messages = []   # of the console, and what went wrong on the page
        self.requests = []   # addresses
        self.failures = []   # requests that brought nothing
        self._loaded = False
        self._attach()

    def close(self):
        self._process.kill()
        self._process.wait()
        os.close(self._read)
        os.close(self._write)
        shutil.rmtree(self._profile, ignore_errors=True)

    def open(self, address):
        """Loads a page; messages and requests are those of this page from now on."""
        self.messages, self.requests, self.failures = [], [], []
        self._loaded = False
        self.call("Page.navigate", url=address)
        end = time.monotonic() + PATIENCE
        while not self._loaded:
            self._take(end)

    def resize(self, width, height, scale=1):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=scale, mobile=width < 600)

    def run_scripts(self, on):
        self.call("Emulation.setScriptExecutionDisabled", value=not on)

    def evaluate(self, expression):
        """The value of an expression on the page."""
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True,
                           awaitPromise=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(answer["exceptionDetails"]["exception"]["description"])
        return answer["result"].get("value")

    def press(self, key):
        more = {"text": "\r"} if key == "Enter" else {}
        for kind in ("keyDown", "keyUp"):
            self.call("Input.dispatchKeyEvent", type=kind, key=key, code=key,
                      windowsVirtualKeyCode=KEY_CODES[key], **more)
        # The page has drawn, and so told its listeners of a scroll.
        self.evaluate("new Promise(done => requestAnimationFrame(() => "
                      "requestAnimationFrame(() => done())))")

    def picture(self, whole=False):
        """The bytes of a PNG."""
        return base64.b64decode(self.call("Page.captureScreenshot", format="png",
                                          captureBeyondViewport=whole)["data"])

    def paper(self, **size):
        """The page printed, as the bytes of a PDF."""
        return base64.b64decode(self.call("Page.printToPDF", preferCSSPageSize=True,
                                          printBackground=False, **size)["data"])

    def call(self, method, **parameters):
        self._number += 1
        number = self._number
        message = {"id": number, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        os.write(self._write, json.dumps(message).encode() + b"\0")
        end = time.monotonic() + PATIENCE
        while True:
            answer = self._take(end)
            if answer.get("id") == number:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']['message']}")
                return answer["result"]

    def _attach(self):
        page = next(target for target in self.call("Target.getTargets")["targetInfos"]
                    if target["type"] == "page")
        self._session = self.call("Target.attachToTarget", targetId=page["targetId"],
                                  flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Network", "Log"):
            self.call(f"{domain}.enable")

    def _take(self, end):
        """The next message of the browser; what the page tells by itself is noted."""
        while b"\0" not in self._bytes:
            if not select.select([self._read], [], [], max(0, end - time.monotonic()))[0]:
                raise TimeoutError("the browser does not answer")
            read = os.read(self._read, 1 << 16)
            if not read:
                raise RuntimeError("the browser has ended")
            self._bytes += read
        line, self._bytes = self._bytes.split(b"\0", 1)
        message = json.loads(line)
        self._note(message.get("method"), message.get("params", {}))
        return message

    def _note(self, method, told):
        if method == "Page.loadEventFired":
            self._loaded = True
        elif method == "Runtime.consoleAPICalled":
            self.messages.append(str(told["args"]))
        elif method == "Runtime.exceptionThrown":
            self.messages.append(str(told["exceptionDetails"]))
        elif method == "Log.entryAdded":
            self.messages.append(told["entry"]["text"])
        elif method == "Network.requestWillBeSent":
            self.requests.append(told["request"]["url"])
        elif method == "Network.loadingFailed":
            self.failures.append(told["errorText"])
