// Connects the program Nerlo Pro with the Shell, which keeps from other programs what they need for
// cleaning the clipboard.

const {Clipboard} = imports.misc.extensionUtils.getCurrentExtension().imports.clipboard;

class Extension {
    enable() {
        this._clipboard = new Clipboard();
    }

    // The clipboard goes on behind the lock screen (see "session-modes"), so that what stands on it
    // stays.
    disable() {
        this._clipboard.destroy();
        this._clipboard = null;
    }
}

function init() {
    return new Extension();
}
