# Does what a screen reader does and nothing else: it reads names, roles and states, hears events,
# does actions and presses keys, all over AT-SPI. screen_reader.sh starts it with the program's path.
import math
import subprocess
import sys
import time

import pyatspi
from gi.repository import Atspi, GLib

DEADLINE = 60  # seconds; reached only when something is wrong
MUTE = {pyatspi.ROLE_INVALID, pyatspi.ROLE_UNKNOWN, pyatspi.ROLE_FILLER,
        pyatspi.ROLE_REDUNDANT_OBJECT}
KEYS = {'Home': 0xff50, 'Down': 0xff54, 'space': 0x20, 'n': 0x6e}

# The first two atoms of the frame on which amino acids are built, in angstroms.
N = (11.140, 8.020, 1.544)
CA = (10.466, 6.872, 2.145)

spoken = []   # names of notices that appeared
focused = []  # names of the controls that got the keyboard
renamed = []


def hear(event):
    try:
        if event.type.startswith('object:state-changed:showing'):
            if event.detail1 and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
                spoken.append(event.source.name)
        elif event.type.startswith('object:state-changed:focused'):
            if event.detail1:
                focused.append(event.source.name)
        else:
            renamed.append(event.source.name)
    except GLib.Error:
        pass  # its source has disappeared meanwhile


def expect(holds, claim):
    if not holds:
        print('heard as notices:', spoken[-5:], file=sys.stderr)
        print('keyboard came to:', focused[-5:], file=sys.stderr)
        sys.exit('screen reader: ' + claim)


def wait_for(answer, claim):
    end = time.monotonic() + DEADLINE
    while time.monotonic() < end:
        try:
            found = answer()
        except GLib.Error:
            found = None  # asked while it appeared or disappeared
        if found:
            return found
        GLib.MainContext.default().iteration(True)
    expect(False, claim)


def shows(control):
    return control.getState().contains(pyatspi.STATE_SHOWING)


def has(control, state):
    return control.getState().contains(state)


def below(control):
    yield control
    for index in range(control.childCount):
        child = control.getChildAtIndex(index)
        if child is not None:
            yield from below(child)


def application():
    for program in pyatspi.Registry.getDesktop(0):
        if program is not None and program.name == 'Orvane':
            return program
    return None


def window(title):
    program = application()
    for frame in program or []:
        if frame.name == title and shows(frame):
            return frame
    return None


def find(role, begin, inside=None):
    """What is shown in a window with that role and a name that begins like this."""
    for control in below(inside or desk):
        if control.getRole() == role and control.name.startswith(begin) and shows(control):
            return control
    return None


def do(control, name):
    actions = control.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    expect(name in names, f'{control.name} has no action {name}, only {names}')
    actions.doAction(names.index(name))


def press(key):
    pyatspi.Registry.generateKeyboardEvent(KEYS[key], None, pyatspi.KEY_SYM)


def wait_spoken(begin, since):
    return wait_for(lambda: next((w for w in spoken[since:] if w.startswith(begin)), None),
                    f'nothing was spoken that begins with "{begin}"')


def every_control_has_words(frame):
    count = 0
    for control in below(frame):
        if not shows(control) or control.getRole() == pyatspi.ROLE_SEPARATOR:
            continue
        expect(control.getRole() not in MUTE, f'"{control.name}" is a {control.getRoleName()}')
        expect(control.name.strip(), f'a {control.getRoleName()} in {frame.name} has no name')
        count += 1
    return count


def lists_speak_their_rows():
    rows = {'Amino acids structure': 21, 'Alpha/Beta structure': 7, 'Nucleotides structure': 15,
            'Single/Double DNA': 3}
    for name, count in rows.items():
        its = find(pyatspi.ROLE_LIST, name)
        expect(its is not None, f'no list {name}')
        expect(its.childCount == count, f'{name} has {its.childCount} rows')
        for row in its:
            expect(row.getRole() == pyatspi.ROLE_LIST_ITEM, f'{row.name} is no row')
            expect(row.name.strip(), f'a row of {name} says nothing')


def choose_alanine():
    amino_acids = find(pyatspi.ROLE_LIST, 'Amino acids structure')
    row = next(row for row in amino_acids if 'ALANINE' in row.name and row.name.startswith('ALA'))
    since = len(spoken)
    do(row, 'Press')
    wait_for(lambda: has(row, pyatspi.STATE_SELECTED), 'the row was not chosen')
    wait_for(lambda: row.name in focused, 'the row of alanine was not read')
    wait_spoken('Alanine, 13 atoms, ', since)


def step_by_keys(picture):
    """Goes to the picture and to its first two atoms: each is read, and each is picked."""
    picture.queryComponent().grabFocus()
    wait_for(lambda: has(picture, pyatspi.STATE_FOCUSED), 'the picture did not take the keyboard')
    for key, atom, order in (('Home', 'Nitrogen N of alanine, atom 1', 'first'),
                             ('n', 'Carbon CA of alanine, atom 2', 'second')):
        since = len(spoken)
        press(key)
        wait_spoken(atom, since)
        expect(picture.description.startswith(atom), f'the picture tells {picture.description}')
        since = len(spoken)
        press('space')
        wait_spoken(f'{atom}, picked as the {order}', since)


def measure(result):
    since = len(spoken)
    do(find(pyatspi.ROLE_PUSH_BUTTON, 'Distance'), 'Press')
    words = wait_spoken('N - CA', since)
    expect(result.name == words, f'{words} was spoken, and {result.name} stands there')
    expect(words in renamed, 'the result did not change its name')
    value = float(words.split(':')[1].split()[0])
    true = math.dist(N, CA)  # 1.4606
    expect(abs(value - true) <= 0.005, f'{words}, and the distance is {true:.4f}')


def the_way_in():
    for title in ('Orvane', "What's new in OVN"):
        frame = wait_for(lambda: window(title), f'no window {title}')
        every_control_has_words(frame)
        do(find(pyatspi.ROLE_PUSH_BUTTON, 'Go on', frame), 'Press')
    return wait_for(lambda: window('Orvane (OVN) V3.0'), 'no window of the desk')


def toggles_and_bars():
    labels = find(pyatspi.ROLE_CHECK_BOX, 'Label')
    expect(not has(labels, pyatspi.STATE_CHECKED), 'labels are on at the start')
    do(labels, 'Toggle')
    wait_for(lambda: has(labels, pyatspi.STATE_CHECKED), 'the labels did not come on')
    enlarge = find(pyatspi.ROLE_SLIDER, 'Enlarge').queryValue()
    expect((enlarge.minimumValue, enlarge.maximumValue) == (-100, 100), 'the bar has another range')
    enlarge.currentValue = 20
    wait_for(lambda: enlarge.currentValue == 20, 'the bar was not set')


for kind in ('object:state-changed:showing', 'object:state-changed:focused',
             'object:property-change:accessible-name'):
    pyatspi.Registry.registerEventListener(hear, kind)
pyatspi.Registry.getDesktop(0).set_cache_mask(Atspi.Cache.NONE)
GLib.timeout_add(20, lambda: True)  # wakes the loop up to look again when no event comes
child = subprocess.Popen([sys.argv[1]])
try:
    desk = the_way_in()
    expect(every_control_has_words(desk) > 60, 'the desk is nearly empty')
    lists_speak_their_rows()
    shown = find(pyatspi.ROLE_IMAGE, 'Empty picture')
    expect(shown is not None, 'the picture does not say that it is empty')
    outcome = find(pyatspi.ROLE_NOTIFICATION, 'Result of the measure')
    choose_alanine()
    expect(shown.name.startswith('Alanine, 13 atoms, '), f'the picture says {shown.name}')
    step_by_keys(shown)
    measure(outcome)
    toggles_and_bars()
    expect(every_control_has_words(desk) > 60, 'the desk is nearly empty')
    do(next(entry for entry in below(desk) if entry.name == 'Exit'), 'Press')
    wait_for(lambda: child.poll() is not None, 'the program goes on after Exit')
    expect(child.returncode == 0, f'the program ended with {child.returncode}')
finally:
    if child.poll() is None:
        child.kill()
