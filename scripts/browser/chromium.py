"""Chromium as a function: lays pages out and says what it shows, in cells.

Chromium is driven over a pair of pipes, so that one process serves thousands of pages.
"""
import base64
import io
import json
import os
import pathlib
import shutil
import subprocess
import tempfile

from PIL import Image

HERE = pathlib.Path(__file__).parent


class Chromium:
    """A browser with one tab, which shows frames.html. Use it in a `with` statement."""

    def __init__(self):
        self._profile = tempfile.mkdtemp(prefix="check-browser-")
        theirs_in, self._out = os.pipe()
        self._in, theirs_out = os.pipe()
        # The browser reads from 3 and writes to 4.
        self._process = subprocess.Popen(
            ["sh", "-c", f'exec "$@" 3<&{theirs_in} 4>&{theirs_out}', "chromium",
             shutil.which("chromium") or "chromium", "--headless", "--no-sandbox", "--disable-gpu",
             "--hide-scrollbars", "--force-device-scale-factor=1", "--disable-lcd-text",
             "--allow-file-access-from-files", "--remote-debugging-pipe",
             f"--user-data-dir={self._profile}", "about:blank"],
            pass_fds=(theirs_in, theirs_out), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(theirs_in)
        os.close(theirs_out)
        self._rest = b""
        self._count = 0
        self._session = None
        target = self._call("Target.createTarget", url="about:blank")["targetId"]
        self._session = self._call("Target.attachToTarget", targetId=target,
                                   flatten=True)["sessionId"]
        self._call("Page.navigate", url=(HERE / "frames.html").as_uri())
        self._evaluate("new Promise(done => document.readyState == 'complete' ? done(1)"
                       " : addEventListener('load', () => done(1)))")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._session = None
        self._call("Browser.close")
        self._process.wait(20)
        os.close(self._in)
        os.close(self._out)
        shutil.rmtree(self._profile, ignore_errors=True)

    @property
    def version(self):
        return self._call("Browser.getVersion")["product"]

    def lay(self, documents):
        """What frames.html says of each (XHTML, width in cells), and the picture of it."""
        answers = self._evaluate(f"layPages({json.dumps(documents)})")
        width = max(8 * width for _, width in documents)
        height = max(sum(answer["height"] for answer in answers), 16)
        self._call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                   deviceScaleFactor=1, mobile=False)
        shot = self._call("Page.captureScreenshot", format="png", optimizeForSpeed=True)["data"]
        picture = Image.open(io.BytesIO(base64.b64decode(shot))).convert("RGB")
        top = 0
        for (_, cells), answer in zip(documents, answers):
            answer["picture"] = picture.crop((0, top + answer["top"], 8 * cells,
                                              top + answer["bottom"]))
            top += answer["height"]
        return answers

    def _evaluate(self, expression):
        answer = self._call("Runtime.evaluate", expression=expression, awaitPromise=True,
                            returnByValue=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(answer["exceptionDetails"]["exception"]["description"])
        return answer["result"]["value"]

    def _call(self, method, **parameters):
        self._count += 1
        message = {"id": self._count, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        self._write(json.dumps(message).encode() + b"\0")
        while True:
            answer = json.loads(self._read())
            if answer.get("id") == self._count:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']['message']}")
                return answer["result"]

    def _write(self, data):
        while data:
            data = data[os.write(self._out, data):]

    def _read(self):
        parts = [self._rest]
        while b"\0" not in parts[-1]:
            part = os.read(self._in, 1 << 20)
            if not part:
                raise RuntimeError("chromium has ended; is it installed?")
            parts.append(part)
        message, _, self._rest = b"".join(parts).partition(b"\0")
        return message
