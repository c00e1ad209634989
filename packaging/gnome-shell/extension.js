// Connects the program Nerlo Pro with the Shell, which keeps from other programs what they need for
// cleaning the clipboard.

const extension = imports.misc.extensionUtils.getCurrentExtension();
const {Clipboard} = extension.imports.clipboard;
const {Panel} = extension.imports.panel;

class Extension {
    enable() {
        this._parts = [new Clipboard(), new Panel()];
    }

    // The clipboard goes on behind the lock screen (see "session-modes"), so that what stands on it
    // stays.
    disable() {
        this._parts.forEach(part => part.destroy());
        this._parts = [];
    }
}

function init() {
    return new Extension();
}
