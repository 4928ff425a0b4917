# Walks through every screen as people do who have one way only to press a command: over the
# accessibility bus, with the mouse, or with the keyboard. Each way has a program and a display of its
# own. After each command all three must come to show the same, and something else than before.
#
#     dbus-run-session -- python3 tests/walk/walk.py FOLDER-OF-PROGRAMS [SCREEN...]
#
# screens.txt lists the screens. Nothing is known of a program but what the bus says of it.
import ctypes
import difflib
import multiprocessing
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

import pyatspi

PATIENCE = 15  # s until something is taken for never coming
COMMANDS = ('push button', 'toggle button', 'check box', 'radio button')
BOXES = ('text', 'entry', 'password text')
LISTS = ('table', 'list')
# Of a keypad that leaves the keyboard where it is: the keys that do the same.
KEYPAD = {'Point': 'period', 'Backspace': 'BackSpace', **{f'Digit {n}': n for n in range(10)}}
CLOCK = re.compile(r'\d?\d:\d\d( [AP]M)?')
STAGE = r'''
request() { printf '"12","1043","7","%s"\r\n' "$1" >c/Lumbrio/Xsend.req; }
evening() { "$bin/sim_pos" evening --drives . >/dev/null; }
by_hand() { rm c/Lumbrio/X1009Version.dat; }
'''


# The first value of get() that is neither false nor nothing.
def wait_for(what, get):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if found := get():
            return found
        time.sleep(0.01)
    raise TimeoutError(what)


# It ends with us.
def run(*command, **how):
    return subprocess.Popen(['setpriv', '--pdeathsig', 'KILL', *map(str, command)],
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **how)


# One program on one display. The steps of a way: press(command), type(box, text), open_row(cell).
class Way:
    def __init__(self, programs, work):
        self.programs, self.drives, self.sandbox = programs, work / 'drives', work / 'sandbox'
        get, give = os.pipe()
        run('Xvfb', '-noreset', '-displayfd', give, '-screen', '0', '1024x768x24', pass_fds=[give])
        os.environ.update(DISPLAY=':' + os.read(get, 9).decode().strip(), bin=str(programs),
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON='1', LUMBRIO_DRIVES=str(self.drives))
        run('openbox')
        wait_for('no window manager', lambda: run('xdotool', 'get_desktop').wait() == 0)
        run(programs / 'sim_pos', 'sandbox', '--drives', self.sandbox).wait()
        self.fingers = run('xdotool', '-', stdin=subprocess.PIPE, text=True)
        self.process = run('true')

    def start(self, program, staging):
        self.process.kill()
        self.process.wait()
        shutil.rmtree(self.drives, ignore_errors=True)
        shutil.copytree(self.sandbox, self.drives, symlinks=True)
        subprocess.run(['sh', '-ec', STAGE + staging], cwd=self.drives, check=True)
        self.process = run(self.programs / program)

    def windows(self):
        for app in pyatspi.Registry.getDesktop(0):
            if app.get_process_id() == self.process.pid:
                app.set_cache_mask(pyatspi.Atspi.Cache.ROLE)
                yield from app

    def look_into(self, thing):
        states = thing.getState()
        if not states.contains(pyatspi.STATE_SHOWING):
            return
        role, name = thing.getRoleName(), thing.name
        text = thing.description if role in COMMANDS else ''
        if role in BOXES:
            text = thing.queryText().getText(0, -1)
            role = 'shown text' if states.contains(pyatspi.STATE_READ_ONLY) else role
        if states.contains(pyatspi.STATE_FOCUSED) and role != 'page tab':  # says so always
            self.focused = thing
        if role == 'page tab':
            self.pages[name] = thing
        if states.contains(pyatspi.STATE_ENABLED):
            self.there[name if role in COMMANDS + BOXES else role] = thing
        yield (role, CLOCK.sub('', name), text,
               states.contains(pyatspi.STATE_ENABLED), states.contains(pyatspi.STATE_CHECKED))
        if role not in COMMANDS + BOXES + LISTS + ('label',):
            for part in range(thing.childCount):
                yield from self.look_into(thing.getChildAtIndex(part))

    # What is to be seen of the window in front, and the names of all; nothing while none is.
    def look(self):
        if self.process.poll() is not None:
            return (('ended', str(self.process.returncode), '', True, False),)
        self.pages = {}
        self.there, self.focused = {}, None  # what is enabled, by its name; lists by what they are
        try:
            windows = [w for w in self.windows() if w.getState().contains(pyatspi.STATE_SHOWING)]
            front = next(w for w in windows if w.getState().contains(pyatspi.STATE_ACTIVE))
            names = '; '.join(sorted(window.name for window in windows))
            return (('windows', names, '', True, False), *self.look_into(front))
        except Exception:  # a control has gone while it was looked at
            return ()

    def find(self, *names):
        return wait_for(f'no "{names[0]}" that is enabled', lambda: next(
            (self.there[n] for n in names if n in self.there), None) or self.look() and None)

    def row(self, cell):
        return next(place for place in self.find(*LISTS) if place.name == cell)

    def act(self, step):
        name, _, text = step.partition(' := ')
        if step.startswith('row '):
            return self.open_row(step[4:])
        if step.startswith('page '):
            return self.turn_to(wait_for(step, lambda: self.look() and self.pages.get(step[5:])))
        return self.type(name, text) if text else self.press(name)

    def hand(self, what):
        self.fingers.stdin.write(what + '\n')
        self.fingers.stdin.flush()


class Bus(Way):
    def press(self, name):
        self.find(name).queryAction().doAction(0)

    def type(self, name, text):
        self.find(name).queryEditableText().setTextContents(text)

    def open_row(self, cell):
        self.row(cell).queryAction().doAction(0)

    def turn_to(self, page):
        page.queryAction().doAction(0)


def place_of(thing):
    return thing.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


class Mouse(Way):
    def click(self, thing):
        at = place_of(thing)
        self.hand(f'mousemove {at.x + at.width // 2} {at.y + at.height // 2} click 1 mousemove 0 0')

    def press(self, name):
        self.click(self.find(name))

    def type(self, name, text):
        self.press(name)
        self.hand(f'key ctrl+a type {text}')

    def open_row(self, cell):
        self.click(self.row(cell))

    def turn_to(self, page):
        self.click(page)


class Keys(Way):
    def __init__(self, *arguments):
        super().__init__(*arguments)
        pyatspi.Registry.registerEventListener(self.hear, 'object:state-changed:focused')
        from gi.repository import GLib
        self.turn = GLib.MainContext.default().iteration

    def hear(self, event):
        try:
            if event.detail1 and event.source.get_process_id() == self.process.pid:
                self.focused = event.source
        except Exception:  # of a program that has ended
            pass

    def keyboard(self):
        return wait_for('nothing has it', lambda: self.focused or self.look() and None)

    # Presses the key and gives the control that it leads to.
    def go_on(self, key):
        while self.turn(False):
            pass
        self.focused = None
        self.hand('key ' + key)
        return wait_for(f'{key} leads nowhere', lambda: self.turn(False) and self.focused)

    # Commands the other way round, not through the boxes: a keypad goes on with the last of them.
    def go_to(self, wanted):
        tab = 'shift+Tab' if wanted.getRoleName() in COMMANDS else 'Tab'
        now, met = self.keyboard(), []
        while now != wanted:
            met.append(now)
            if met.count(now) > 1:
                raise TimeoutError(f'Tab misses "{wanted.name}"')
            radios = now.getRoleName() == wanted.getRoleName() == 'radio button'
            here, there = place_of(now), place_of(wanted)
            now = self.go_on(tab if not radios else 'Right' if there.x > here.x else 'Left')

    # All that the Tab key comes to, by name.
    def tour(self):
        met = [self.keyboard()]
        while met.count(met[-1]) < 2:
            met.append(self.go_on('Tab'))
        return {control.name for control in met}

    def press(self, name):
        wanted = self.find(name)
        if not wanted.getState().contains(pyatspi.STATE_FOCUSABLE):
            return self.hand(f'key {KEYPAD[name]}' if name in KEYPAD else 'key ctrl+a Delete')
        self.go_to(wanted)
        if wanted.getRoleName() != 'radio button' or \
                not wanted.getState().contains(pyatspi.STATE_CHECKED):  # by going there
            self.hand('key space')

    def type(self, name, text):
        self.go_to(self.find(name))
        self.hand(f'key ctrl+a type {text}')

    def open_row(self, cell):
        self.go_to(self.find(*LISTS))
        self.hand(f'type {cell}\nkey Return')

    # From the first page on.
    def turn_to(self, page):
        while self.go_on('Tab').getRoleName() != 'page tab list':
            pass
        self.hand('key' + page.getIndexInParent() * ' Right')


def serve(pipe, way, programs, work):
    ctypes.CDLL(None).prctl(1, 9)  # ends with the walk
    work.mkdir()
    hand = way(programs, work)
    pipe.send('ready')
    while True:
        name, *values = pipe.recv()
        try:
            pipe.send((getattr(hand, name)(*values), ''))
        except Exception as failure:
            pipe.send((None, f'{way.__name__}: {failure}'))


def enabled(seen):
    return [name for role, name, _, on, _ in seen if role in COMMANDS and on]


class Walk:
    def __init__(self, programs, work):
        self.pipes, self.faults = {}, 0
        for way in (Bus, Mouse, Keys):
            pipe, end = multiprocessing.Pipe()
            multiprocessing.Process(target=serve, daemon=True,
                                    args=(end, way, programs, work / way.__name__)).start()
            pipe.recv()
            self.pipes[way] = pipe

    def all(self, *call, ways=(Bus, Mouse, Keys)):
        for way in ways:
            self.pipes[way].send(call)
        answers, failures = zip(*[self.pipes[way].recv() for way in ways])
        if any(failures):
            raise TimeoutError('; '.join(filter(None, failures)))
        return answers

    # What all three show in the end, which is not what was there before.
    def agreed(self, before):
        def get():
            nonlocal last
            last = self.all('look', ways=[Bus])
            if last[0] == before:
                return False
            last += self.all('look', ways=[Mouse, Keys])
            return last[0] != before and last[0] and last[0] == last[1] == last[2]
        last = ()
        try:
            wait_for('', get)
            return last[0]
        except TimeoutError:
            lines = [f'\n    {way.__name__}: {line}' for way, seen in zip(self.pipes, last)
                     for line in difflib.unified_diff([*map(str, last[0])], [*map(str, seen)], n=0)
                     if line[:2] in ('-(', '+(')]
            raise TimeoutError(''.join(lines) or 'it does nothing') from None

    def act(self, step, before):
        self.all('act', step)
        return self.agreed(before)

    def fault(self, where, what):
        self.faults += 1
        print(f'{where}: {what}', flush=True)

    def look_over(self, where, seen):
        names = [name for role, name, *_ in seen if role in COMMANDS + BOXES]
        for role, name, *_ in seen:
            if role in COMMANDS + BOXES + LISTS and (not name or names.count(name) > 1):
                self.fault(where, f'a {role} without a name' if not name else f'two "{name}"')

    # Until the commands that can be pressed are those of the table.
    def reach(self, screen):
        self.all('start', screen['program'], screen['staging'])
        seen = self.agreed(())
        for step in screen['steps']:
            seen = self.act(step, seen)

        def listed():
            nonlocal seen
            seen = self.agreed(None)
            names = enabled(seen)
            return all(any(map(c.matches, names)) for c in commands) and \
                all(any(c.matches(name) for c in commands) for name in names)
        commands = [c for c in screen['commands'] if c.is_button]
        try:
            wait_for('', listed)
        except TimeoutError:
            self.look_over('', seen)
            raise TimeoutError(f'other commands are enabled: {"; ".join(enabled(seen))}') from None
        return seen

    def screen(self, where, screen):
        first = seen = self.reach(screen)
        self.look_over(where, seen)
        boxes = {name for role, name, _, on, _ in seen if role in BOXES and on}
        for name in boxes and boxes - self.all('tour', ways=[Keys])[0]:
            self.fault(where, f'Tab misses "{name}"')
        steps = [(c, step) for c in screen['commands'] if c.mark != '-'
                 for step in (filter(c.matches, enabled(first)) if c.is_button else [c.name])]
        for command, step in steps:
            try:
                if seen[0] != first[0]:
                    seen = self.reach(screen)
                seen = self.act(step, None if command.mark == '=' else seen)
                self.look_over(f'{where}, {step}', seen)
            except TimeoutError as failure:
                self.fault(f'{where}, {step}', failure)
                seen = [None]


class Command:
    def __init__(self, text):
        self.name, self.mark = (text[:-2], text[-1]) if text[-2:] in (' =', ' -') else (text, '')
        self.is_button = ' := ' not in text and not text.startswith(('row ', 'page '))

    def matches(self, name):
        return name.startswith(self.name[:-1]) if self.name[-1] == '*' else name == self.name


# The rows of screens.txt by their names; what begins at another screen goes on from there.
def screens():
    found = {}
    table = pathlib.Path(__file__).with_name('screens.txt').read_text().replace('\n    ', ' ')
    for row in table.splitlines():
        if not row.startswith('#'):
            name, program, staging, steps, commands = map(str.strip, row.split('|'))
            start = found.get(program, {'program': program, 'staging': staging, 'steps': []})
            found[name] = dict(start, steps=start['steps'] + [s for s in steps.split('; ') if s],
                               commands=[Command(c) for c in commands.split('; ')])
    return found


def main(programs, *names):
    with tempfile.TemporaryDirectory() as work:
        walk = Walk(pathlib.Path(programs).resolve(), pathlib.Path(work))
        for name, screen in screens().items():
            if name in names or not names:
                start = time.monotonic()
                try:
                    walk.screen(name, screen)
                except TimeoutError as failure:
                    walk.fault(name, failure)
                print(f'{name}: {time.monotonic() - start:.1f} s', flush=True)
    return walk.faults > 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:]))
