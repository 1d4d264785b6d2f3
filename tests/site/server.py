"""PHP's own web server with the pages, and the pages as it gives them."""

import contextlib
import socket
import subprocess
import time
import urllib.error
import urllib.request

PATIENCE = 60  # seconds until a server that says nothing counts as broken


class Server:
    """Serves one folder on an address of this machine alone."""

    def __init__(self, folder):
        with contextlib.closing(socket.socket()) as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        self.host = f"127.0.0.1:{port}"
        self._process = subprocess.Popen(["php", "-S", self.host, "-t", str(folder)],
                                         stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                         stderr=subprocess.DEVNULL)
        end = time.monotonic() + PATIENCE
        while True:
            with contextlib.closing(socket.socket()) as visitor:
                if visitor.connect_ex(("127.0.0.1", port)) == 0:
                    return
            if time.monotonic() > end or self._process.poll() is not None:
                raise RuntimeError("PHP's server did not come up")
            time.sleep(0.02)

    def close(self):
        self._process.kill()
        self._process.wait()

    def get(self, path):
        """Status and bytes of a page."""
        try:
            with urllib.request.urlopen(f"http://{self.host}{path}", timeout=PATIENCE) as answer:
                return answer.status, answer.read()
        except urllib.error.HTTPError as refusal:
            with refusal:
                return refusal.code, refusal.read()
