"""Uses Meridax as somebody does who cannot see it: walks through window, settings and dialogs with
the tab key, starts the camera, runs a whole calibration with the simulated camera and hears the
verdict, by names and roles alone. Prints what it did; the first failure ends it.

use_by_name.py BUILD-FOLDER, started by run-accessibility."""

import json
import math
import os
import subprocess
import sys
import tempfile
import time

from screen_reader import CONTROLS, EMPTY, ESCAPE, SPACE, ScreenReader, wait_for

POSITIONS = 6
RESOLUTION = "640 x 480"
SETTINGS = "Einstellungen"
START = time.monotonic()


def say(text):
    print(f"{time.monotonic() - START:5.1f} s  {text}", flush=True)


class Camera:
    """The simulated camera, turned through its own command line tool."""

    def __init__(self, tool, folder):
        self._command = [tool, "--dir", folder]

    def _run(self, *arguments):
        return subprocess.run([*self._command, *arguments], check=True, capture_output=True,
                              text=True).stdout

    def turn_towards(self, degrees):
        """Turns until the mark lies in that direction as seen from the middle of the frame."""
        truth = dict(line.split("=", 1) for line in self._run("truth").splitlines())
        x, y, radius = (float(truth[key]) for key in ("center_x", "center_y", "radius"))
        middle = float(truth["width"]) / 2, float(truth["height"]) / 2
        turn = degrees
        for _ in range(8):
            t = math.radians(turn)
            seen = math.degrees(math.atan2(y + radius * math.sin(t) - middle[1],
                                           x + radius * math.cos(t) - middle[0]))
            turn += math.remainder(degrees - seen, 360)
        self._run("turn", "--to", f"{turn:.3f}")


def check(reader, surface, where):
    """Every control of `surface` says what it is, and the tab key visits everything that can have
    the focus, each once, and comes back."""
    controls, focusable = 0, []
    for object in surface.walk():
        # Qt reports every text as focusable.
        can_have_focus = object.role != "label" and object.has("focusable", "enabled", "showing")
        if can_have_focus or object.role in CONTROLS:
            controls += 1
            assert object.name and object.role not in EMPTY, f"{where}: {object} says too little"
        if can_have_focus:
            focusable.append(object)

    stops = [reader.follow_tab()]
    while (stop := reader.follow_tab()) != stops[0]:
        assert stop not in stops, f"{where}: the tab key comes to {stop} twice"
        assert stop.name and stop.role not in EMPTY, f"{where}: {stop} says too little"
        stops.append(stop)
    missed = [str(object) for object in focusable if object not in stops]
    assert not missed, f"{where}: the tab key does not reach {missed}"
    say(f"checked     {where}: {controls} controls named, {len(stops)} stops of the tab key")


def open_by_key(reader, opener, name):
    """Presses the button `opener` by the space bar; returns the dialog that opens."""
    button = reader.find("button", opener)
    button.take_focus()
    wait_for(f"the focus on {button}", lambda: reader.focus == button)
    reader.press_key(SPACE)
    return reader.find("dialog", name)


def close_by_key(reader, name, back):
    """Closes the dialog `name` by the escape key; the focus goes back to the button `back`."""
    reader.press_key(ESCAPE)
    wait_for(f"the focus to come back to “{back}”", lambda: reader.focus.name == back)
    wait_for(f"the end of “{name}”", lambda: reader.look_for("dialog", name) is None)


def visit_dialogs(reader):
    """The settings, and every dialog that opens from there."""
    check(reader, open_by_key(reader, SETTINGS, SETTINGS), "the settings")
    about = "Über Meridax — Build-Info anzeigen"
    check(reader, open_by_key(reader, about, "Meridax"), "build information")
    close_by_key(reader, "Meridax", about)
    for opener, name in (("Bug", "Bug melden"), ("Feature", "Feature vorschlagen"),
                         ("Feedback", "Feedback senden")):
        if reader.look_for("dialog", SETTINGS) is None:
            open_by_key(reader, SETTINGS, SETTINGS)
        check(reader, open_by_key(reader, opener, name), f"“{name}”")
        close_by_key(reader, name, SETTINGS)


def change_values(reader):
    """What assistive technology changes reaches the program: the switch of the second circle
    enables its colour, its radius moves, and the number of positions is taken."""
    colour = reader.find("button", "Farbe: Kreis 2")
    assert not colour.has("enabled")
    reader.find("check box", "Kreis 2").press()
    wait_for(f"{colour} to be enabled", lambda: colour.has("enabled"))
    reader.find("combo box", "Auflösung: …").press()
    reader.find("menu item", f"{RESOLUTION} …").press()
    say(f"chosen      {reader.find('combo box', f'Auflösung: {RESOLUTION} …').name}")


def calibrate(reader, camera):
    """A whole calibration; returns the verdict."""
    reader.find("button", "Start").press()
    say(f"heard       {reader.wait_until_heard('Kamera verbunden')}")
    reader.find("page tab", "Kalibrierung").press()
    reader.find("spin button", "Messpositionen").value = POSITIONS
    reader.find("button", "Kalibrierung starten").press()
    measure = reader.find("button", "Position messen")
    for i in range(POSITIONS):
        position = reader.wait_until_heard(f"Position {i + 1} von {POSITIONS}")
        camera.turn_towards(-45 - i * 360 / POSITIONS)
        say(f"heard       {position}, {reader.wait_until_heard('✓ Blob im Sektor … zum Messen')}")
        measure.press()
    return reader.wait_until_heard("Zentrum … bestimmt")


def use(reader, camera):
    reader.wait_for_program("Meridax")
    say(f"program     {reader.window}")
    check(reader, reader.window, "the window")
    visit_dialogs(reader)
    change_values(reader)

    verdict = calibrate(reader, camera)
    say(f"verdict     {verdict}")
    assert reader.find("label", verdict)
    check(reader, reader.find("dialog", "Kalibrierung abgeschlossen"), "the result")
    reader.find("button", "Ja").press()
    say(f"heard       {reader.wait_until_heard('Kalibriert')}")
    reader.find("page tab", "Kalibrierung").press()
    check(reader, reader.window, "the window with a result")


def main(build):
    simcam = os.path.join(build, "tools/simcam/simcam")
    program = os.path.join(build, "src/app/meridax")
    settings = os.path.join(os.environ["XDG_DATA_HOME"], "Tarnwick Optics/Meridax")
    os.makedirs(settings)
    with open(os.path.join(settings, "appsettings.json"), "w", encoding="utf-8") as file:
        # A narrow window is drawn faster, where no graphics card helps.
        json.dump({"windowWidth": 900, "windowHeight": 940}, file)
    with tempfile.TemporaryDirectory() as work:
        reader = ScreenReader()
        processes = [subprocess.Popen(["openbox", "--sm-disable"]),
                     subprocess.Popen([simcam, "--dir", work, "run", "--frame-delay", "0.1", "--",
                                       program])]
        try:
            use(reader, Camera(simcam, work))
        finally:
            for process in reversed(processes):
                process.terminate()
                process.wait()


if __name__ == "__main__":
    main(sys.argv[1])
