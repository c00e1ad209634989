// Keys for the program: its hot keys, and Ctrl with a key pressed in the user's place. And where the
// pointer is, for what a key opens.

const {Clutter, Gio, GLib, Meta, Shell} = imports.gi;
const Main = imports.ui.main;

const {PATH} = imports.misc.extensionUtils.getCurrentExtension().imports.program;

const NAME = 'org.nerlo.NerloPro.Shell.Keys';
const INTERFACE = `<node><interface name="org.nerlo.NerloPro.Shell.Keys">
  <!-- Takes a combination, as the Shell spells it; 0: somebody has it. -->
  <method name="Grab">
    <arg name="accelerator" type="s" direction="in"/>
    <arg name="grabbed" type="u" direction="out"/>
  </method>
  <method name="Release">
    <arg name="grabbed" type="u" direction="in"/>
  </method>
  <signal name="Pressed">
    <arg name="grabbed" type="u"/>
  </signal>
  <!-- The program has come; what it asked before was refused. -->
  <signal name="Listening"/>
  <!-- The window in front, but for the program's own, is the one to paste into. -->
  <method name="Remember"/>
  <!-- Presses Ctrl and the key (evdev code) once that window has the keyboard and nobody holds a
       modifier key. False: it did not come to that soon. -->
  <method name="Paste">
    <arg name="key" type="u" direction="in"/>
    <arg name="pressed" type="b" direction="out"/>
  </method>
  <method name="Pointer">
    <arg name="x" type="i" direction="out"/>
    <arg name="y" type="i" direction="out"/>
  </method>
</interface></node>`;

const GRAB_LIMIT = 512;
const MODES = Shell.ActionMode.NORMAL | Shell.ActionMode.OVERVIEW | Shell.ActionMode.POPUP;

const CONTROL = 29; // evdev
const KEY_LIMIT = 248; // of a keyboard
const HELD = Clutter.ModifierType.SHIFT_MASK | Clutter.ModifierType.CONTROL_MASK |
    Clutter.ModifierType.MOD1_MASK | Clutter.ModifierType.MOD4_MASK;
const LOOKS_EVERY_MS = 10;
// A busy desktop takes its time to close one window and bring back another.
const BACK_WITHIN_MS = 5000;
// Who holds a key for longer has changed his mind.
const PATIENCE_MS = 1500;

var Keys = class {
    constructor(program) {
        this._program = program;
        this._grabbed = new Set();
        this._pressed = global.display.connect('accelerator-activated',
            (_display, action, _device, time) => {
                if (this._grabbed.has(action)) {
                    program.acted(time);
                    program.emit(NAME, 'Pressed', new GLib.Variant('(u)', [action]));
                }
            });
        this._look();
        this._focus = global.display.connect('notify::focus-window', () => this._look());
        this._object = Gio.DBusExportedObject.wrapJSObject(INTERFACE, this);
        this._object.export(Gio.DBus.session, PATH);
        program.follow(this);
    }

    destroy() {
        this._object.unexport();
        global.display.disconnect(this._pressed);
        global.display.disconnect(this._focus);
        this.left();
    }

    came() {
        this._program.emit(NAME, 'Listening', null);
    }

    left() {
        this._grabbed.forEach(action => this._release(action));
        this._stopPasting();
        this._target = null;
        this._keyboard?.run_dispose();
        this._keyboard = null;
    }

    GrabAsync([accelerator], invocation) {
        if (!this._program.admits(invocation))
            return;
        const action = this._grabbed.size < GRAB_LIMIT
            ? global.display.grab_accelerator(accelerator, Meta.KeyBindingFlags.IGNORE_AUTOREPEAT)
            : Meta.KeyBindingAction.NONE;
        if (action !== Meta.KeyBindingAction.NONE) {
            this._grabbed.add(action);
            Main.wm.allowKeybinding(Meta.external_binding_name_for_action(action), MODES);
        }
        invocation.return_value(new GLib.Variant('(u)', [action]));
    }

    ReleaseAsync([action], invocation) {
        if (!this._program.admits(invocation))
            return;
        if (this._grabbed.has(action))
            this._release(action);
        invocation.return_value(null);
    }

    RememberAsync(_parameters, invocation) {
        if (!this._program.admits(invocation))
            return;
        this._target = this._last;
        invocation.return_value(null);
    }

    PasteAsync([key], invocation) {
        if (!this._program.admits(invocation))
            return;
        this._stopPasting();
        if (key === 0 || key > KEY_LIMIT) {
            this._program.refuse(invocation, 'no such key');
            return;
        }
        let back = false;
        let until = GLib.get_monotonic_time() + BACK_WITHIN_MS * 1000;
        this._pasting = {
            answer: done => invocation.return_value(new GLib.Variant('(b)', [done])),
            timer: GLib.timeout_add(GLib.PRIORITY_DEFAULT, LOOKS_EVERY_MS, () => {
                const now = GLib.get_monotonic_time();
                if (!back && this._isBack()) {
                    back = true;
                    until = now + PATIENCE_MS * 1000;
                }
                const ready = back && this._isReady();
                // Another window that comes to the front is not the one to paste into.
                if (!ready && now < until && this._last === this._target)
                    return GLib.SOURCE_CONTINUE;
                if (ready)
                    this._press(key);
                this._stopPasting(ready);
                return GLib.SOURCE_REMOVE;
            }),
        };
    }

    PointerAsync(_parameters, invocation) {
        if (!this._program.admits(invocation))
            return;
        const [x, y] = global.get_pointer();
        invocation.return_value(new GLib.Variant('(ii)', [x, y]));
    }

    _stopPasting(done = false) {
        const pasting = this._pasting;
        this._pasting = null;
        if (pasting) {
            if (!done)
                GLib.source_remove(pasting.timer);
            pasting.answer(done);
        }
    }

    _release(action) {
        this._grabbed.delete(action);
        Main.wm.allowKeybinding(Meta.external_binding_name_for_action(action),
            Shell.ActionMode.NONE);
        global.display.ungrab_accelerator(action);
    }

    // Remembers the window in front.
    _look() {
        const window = global.display.focus_window;
        if (window && !this._program.owns(window))
            this._last = window;
    }

    _isBack() {
        return this._target && global.display.focus_window === this._target;
    }

    _isReady() {
        const [, , modifiers] = global.get_pointer();
        return this._isBack() && (modifiers & HELD) === 0 &&
            Main.actionMode === Shell.ActionMode.NORMAL;
    }

    _press(key) {
        this._keyboard ??= Clutter.get_default_backend().get_default_seat()
            .create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE);
        const {PRESSED, RELEASED} = Clutter.KeyState;
        for (const [code, state] of [[CONTROL, PRESSED], [key, PRESSED], [key, RELEASED],
            [CONTROL, RELEASED]])
            this._keyboard.notify_key(GLib.get_monotonic_time(), code, state);
    }
};
