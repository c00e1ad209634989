// Connects the program Nerlo Pro with the Shell, which keeps from other programs what they need for
// cleaning the clipboard.

const {Gio} = imports.gi;

const extension = imports.misc.extensionUtils.getCurrentExtension();
const {Clipboard} = extension.imports.clipboard;
const {Keys} = extension.imports.keys;
const {Panel} = extension.imports.panel;
const {Program} = extension.imports.program;

const NAME = 'org.nerlo.NerloPro.Shell';

class Extension {
    enable() {
        // Who finds the name finds all of it, and is known if it is the program.
        this._program = new Program(() => {
            this._name = Gio.DBus.session.own_name(NAME, Gio.BusNameOwnerFlags.NONE, null, null);
        });
        this._parts = [new Clipboard(this._program), new Keys(this._program),
            new Panel(this._program)];
    }

    // The clipboard goes on behind the lock screen (see "session-modes"), so that what stands on it
    // stays.
    disable() {
        if (this._name)
            Gio.bus_unown_name(this._name);
        this._name = null;
        this._parts.forEach(part => part.destroy());
        this._parts = [];
        this._program.destroy();
        this._program = null;
    }
}

function init() {
    return new Extension();
}
