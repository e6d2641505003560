"""Opens a noVNC address in a running headless Chromium and saves what the page shows:
    browser_shot.py DEVTOOLS_PORT URL PNG SECONDS
Waits, up to SECONDS in all, until noVNC is connected and its picture of the remote screen
holds enough pixels of the dialogs' background colour (a dialog is up), then saves a
screenshot of the page. Exit status 0 when both happened in time; otherwise the last
screenshot is saved all the same, for a look at what went wrong."""
import base64
import json
import sys
import time
import urllib.request

import websocket

port, url, png, seconds = sys.argv[1], sys.argv[2], sys.argv[3], float(sys.argv[4])
deadline = time.monotonic() + seconds

# Pixels of the dialogs' background (red 204, green 147, blue 147) on noVNC's canvas; -1
# while it is not connected.
PROBE = """(() => {
  if (!document.documentElement.classList.contains('noVNC_connected')) return -1;
  const c = document.querySelector('#noVNC_container canvas');
  if (!c || !c.width) return 0;
  const d = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;
  let n = 0;
  for (let i = 0; i < d.length; i += 4)
    if (d[i] === 204 && d[i + 1] === 147 && d[i + 2] === 147) n++;
  return n;
})()"""

targets = json.load(urllib.request.urlopen(f"http://127.0.0.1:{port}/json/list", timeout=10))
page = next(t for t in targets if t["type"] == "page")
ws = websocket.create_connection(page["webSocketDebuggerUrl"], timeout=30, suppress_origin=True)
next_id = 0


def call(method, **params):
    global next_id
    next_id += 1
    ws.send(json.dumps({"id": next_id, "method": method, "params": params}))
    while True:
        answer = json.loads(ws.recv())
        if answer.get("id") == next_id:
            if "error" in answer:
                raise RuntimeError(f"{method}: {answer['error']}")
            return answer["result"]


call("Page.navigate", url=url)
state = "not connected"
seen = False
while time.monotonic() < deadline:
    pixels = call("Runtime.evaluate", expression=PROBE, returnByValue=True)["result"].get("value")
    if isinstance(pixels, int) and pixels >= 0:
        state = f"connected, {pixels} pixels of the dialog colour"
        if pixels >= 20000:  # a dialog, not a stray line
            seen = True
            time.sleep(1)  # let the rest of the dialog arrive
            break
    time.sleep(1)
shot = call("Page.captureScreenshot", format="png")
with open(png, "wb") as f:
    f.write(base64.b64decode(shot["data"]))
print(f"browser: {state}")
sys.exit(0 if seen else 1)
