// The one program that the Shell serves here: the owner of Nerlo Pro's name on the session bus.

const {Gio, GLib} = imports.gi;
const Main = imports.ui.main;

var NAME = 'org.nerlo.NerloPro';
var PATH = '/org/nerlo/NerloPro/Shell';

// What the user does in the Shell may bring a window of the program to the front for so long.
const ACT_MICROSECONDS = 3000000;

var Program = class {
    // `known` is called once, when it is known whether the program is there.
    constructor(known) {
        this._known = known;
        this._followers = [];
        this._processId = 0;
        this._actedAt = -ACT_MICROSECONDS;
        this._watch = Gio.bus_watch_name(Gio.BusType.SESSION, NAME, Gio.BusNameWatcherFlags.NONE,
            (_bus, _name, owner) => this._came(owner), () => this._left());
        // Windows that come by themselves do not get the keyboard, but these were asked for.
        this._attention = global.display.connect('window-demands-attention', (_display, window) => {
            if (this.owns(window) && GLib.get_monotonic_time() - this._actedAt < ACT_MICROSECONDS)
                Main.activateWindow(window, this._actTime);
        });
    }

    destroy() {
        Gio.bus_unwatch_name(this._watch);
        global.display.disconnect(this._attention);
    }

    // Its functions `came` and `left` are called from now on.
    follow(follower) {
        this._followers.push(follower);
    }

    get isThere() {
        return this._owner !== undefined;
    }

    _came(owner) {
        this._owner = owner;
        Gio.DBus.session.call('org.freedesktop.DBus', '/org/freedesktop/DBus',
            'org.freedesktop.DBus', 'GetConnectionUnixProcessID', new GLib.Variant('(s)', [owner]),
            null, Gio.DBusCallFlags.NONE, -1, null, (bus, result) => {
                try {
                    const [id] = bus.call_finish(result).deepUnpack();
                    if (owner === this._owner)
                        this._processId = id;
                } catch (error) {
                    // It has gone meanwhile.
                }
            });
        this._followers.forEach(follower => follower.came());
        this._tellKnown();
    }

    _left() {
        if (this.isThere) {
            this._owner = undefined;
            this._processId = 0;
            this._followers.forEach(follower => follower.left());
        }
        this._tellKnown();
    }

    _tellKnown() {
        this._known?.();
        this._known = null;
    }

    // Whether the window is the program's.
    owns(window) {
        return this._processId > 0 && window.get_pid() === this._processId;
    }

    // The user has told the program something, at this time.
    acted(time) {
        this._actTime = time;
        this._actedAt = GLib.get_monotonic_time();
    }

    emit(iface, signal, parameters) {
        if (this.isThere)
            Gio.DBus.session.emit_signal(this._owner, PATH, iface, signal, parameters);
    }

    // Whether the call comes from the program; answers it if not.
    admits(invocation) {
        const admitted = this.isThere && invocation.get_sender() === this._owner;
        if (!admitted) {
            invocation.return_dbus_error('org.freedesktop.DBus.Error.AccessDenied',
                `only for the owner of ${NAME}`);
        }
        return admitted;
    }

    refuse(invocation, why) {
        invocation.return_dbus_error('org.freedesktop.DBus.Error.Failed', why);
    }
};
