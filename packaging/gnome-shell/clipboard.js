// The Shell's clipboard on the session bus, and what comes to the front, for the one program that owns
// the name of Nerlo Pro.
//
// Nothing here waits: bytes go through pipes and files that the program passes, piece by piece or on
// another thread, and what an owner of the clipboard or the program does not do in time is given up.

const {Gio, GLib, GObject, Meta} = imports.gi;

const {PATH} = imports.misc.extensionUtils.getCurrentExtension().imports.program;

const NAME = 'org.nerlo.NerloPro.Shell';

// Formats are MIME types, in the owner's order. A count belongs to one content: it grows with each
// replacement.
const INTERFACE = `<node><interface name="org.nerlo.NerloPro.Shell">
  <property name="Version" type="u" access="read"/>
  <method name="State">
    <arg name="count" type="x" direction="out"/>
    <arg name="formats" type="as" direction="out"/>
    <arg name="complete" type="b" direction="out"/>
  </method>
  <!-- Writes the bytes of one format into a pipe and closes it. False: not all of them, because the
       owner failed or the content is another one by now. -->
  <method name="Read">
    <arg name="count" type="x" direction="in"/>
    <arg name="format" type="s" direction="in"/>
    <arg name="pipe" type="h" direction="in"/>
    <arg name="done" type="b" direction="out"/>
  </method>
  <!-- Replaces the content by the first bytes of a file, the same for all formats; if conditional,
       only the content that had this count. -->
  <method name="Write">
    <arg name="conditional" type="b" direction="in"/>
    <arg name="over" type="x" direction="in"/>
    <arg name="formats" type="as" direction="in"/>
    <arg name="file" type="h" direction="in"/>
    <arg name="size" type="t" direction="in"/>
    <arg name="done" type="b" direction="out"/>
    <arg name="count" type="x" direction="out"/>
  </method>
  <!-- The content was replaced by anybody but Write, or the program has just come. -->
  <signal name="Changed">
    <arg name="count" type="x"/>
    <arg name="formats" type="as"/>
    <arg name="complete" type="b"/>
  </signal>
  <!-- Another window came to the front. -->
  <signal name="Activated">
    <arg name="application" type="s"/>
  </signal>
</interface></node>`;

// More or longer names are nonsense, and are left off.
const FORMAT_LIMIT = 256;
const FORMAT_NAME_LIMIT = 1024;
const BYTES_LIMIT = 256 * 1024 * 1024;
// Of the same kind, at the same time.
const TRANSFER_LIMIT = 16;
const TRANSFER_SECONDS = 16;

// These are about the transfer, and no content.
const PROTOCOL = ['TARGETS', 'MULTIPLE', 'TIMESTAMP', 'SAVE_TARGETS', 'DELETE', 'INSERT_SELECTION',
    'INSERT_PROPERTY'];
const SECRET = 'x-kde-passwordManagerHint';

const CLIPBOARD = Meta.SelectionType.SELECTION_CLIPBOARD;

// One text in several formats. Functions that take a callback, as read_async does, cannot be overridden
// here. The one that is inherited fails for want of a format, which only read_finish tells; and that
// can be overridden.
const Text = GObject.registerClass(
class NerloProText extends Meta.SelectionSourceMemory {
    _init(formats, bytes) {
        super._init();
        this._formats = formats;
        this._bytes = bytes;
    }

    vfunc_get_mimetypes() {
        return this._formats;
    }

    vfunc_read_finish(_result) {
        return Gio.MemoryInputStream.new_from_bytes(this._bytes);
    }
});

var Clipboard = class {
    constructor(program) {
        this._program = program;
        this._selection = global.display.get_selection();
        // No count of an earlier time comes again: replacements are not as fast as this clock.
        this._count = GLib.get_monotonic_time();
        this._transfers = new Set();
        this._writes = new Set();
        this._look(null);
        this._changes = this._selection.connect('owner-changed', (_selection, type, source) => {
            if (type === CLIPBOARD)
                this._replaced(source);
        });
        this._focus = global.display.connect('notify::focus-window', () => {
            const window = global.display.focus_window;
            if (window) {
                const name = window.get_wm_class() ?? '';
                program.emit(NAME, 'Activated', new GLib.Variant('(s)', [name]));
            }
        });
        this._object = Gio.DBusExportedObject.wrapJSObject(INTERFACE, this);
        this._object.export(Gio.DBus.session, PATH);
        program.follow(this);
    }

    destroy() {
        this._selection.disconnect(this._changes);
        global.display.disconnect(this._focus);
        this._object.unexport();
        this._cancel(this._transfers);
        this._cancel(this._writes);
    }

    came() {
        this._tell();
    }

    left() {
        this._cancel(this._transfers);
    }

    get Version() {
        return 2;
    }

    StateAsync(_parameters, invocation) {
        if (this._program.admits(invocation))
            invocation.return_value(this._state());
    }

    ReadAsync([count, format], invocation, fdList) {
        const fd = this._takeDescriptor(fdList);
        const admitted = this._program.admits(invocation);
        if (fd === null || !admitted) {
            if (fd !== null)
                Gio.UnixOutputStream.new(fd, true).close(null);
            if (admitted)
                this._program.refuse(invocation, 'there is no pipe');
            return;
        }
        GLib.unix_set_fd_nonblocking(fd, true);
        const pipe = Gio.UnixOutputStream.new(fd, true);
        const end = done => {
            pipe.close(null);
            invocation.return_value(new GLib.Variant('(b)', [done]));
        };
        if (count !== this._count || !this._formats.includes(format) ||
            this._transfers.size >= TRANSFER_LIMIT) {
            end(false);
            return;
        }
        if (this._secret && format === SECRET) {
            this._start(this._transfers, end, (_cancellable, finished) =>
                finished(() => pipe.write_all('secret', null)[0]));
            return;
        }
        this._start(this._transfers, end, (cancellable, finished) =>
            this._selection.transfer_async(CLIPBOARD, format, -1, pipe, cancellable,
                (selection, result) => finished(() => selection.transfer_finish(result))));
    }

    WriteAsync([conditional, over, formats, _handle, size], invocation, fdList) {
        const fd = this._takeDescriptor(fdList);
        const file = fd === null ? null : Gio.UnixInputStream.new(fd, true);
        if (!this._program.admits(invocation)) {
            file?.close(null);
            return;
        }
        if (file === null || size > BYTES_LIMIT || this._writes.size >= TRANSFER_LIMIT) {
            file?.close(null);
            this._program.refuse(invocation, 'too much');
            return;
        }
        let bytes = null;
        const end = read => {
            file.close(null);
            if (!read || bytes.get_size() !== size) {
                this._program.refuse(invocation, 'the bytes did not arrive');
                return;
            }
            // Not at once: copies that a busy Shell has not looked at yet come first.
            GLib.idle_add(GLib.PRIORITY_DEFAULT, () => {
                const done = !(conditional && over !== this._count);
                if (done) {
                    this._own = true;
                    this._selection.set_owner(CLIPBOARD, new Text(formats, bytes));
                    this._own = false;
                }
                invocation.return_value(new GLib.Variant('(bx)', [done, this._count]));
                return GLib.SOURCE_REMOVE;
            });
        };
        this._start(this._writes, end, (cancellable, finished) =>
            file.read_bytes_async(Math.max(size, 1), GLib.PRIORITY_DEFAULT, cancellable,
                (_file, result) => finished(() => {
                    bytes = file.read_bytes_finish(result);
                    return true;
                })));
    }

    // `begin` gets a cancellable and a function to call at the end with one that gives the outcome.
    // `end` gets that outcome, once and in time.
    _start(running, end, begin) {
        const cancellable = new Gio.Cancellable();
        running.add(cancellable);
        const timer = GLib.timeout_add_seconds(GLib.PRIORITY_DEFAULT, TRANSFER_SECONDS, () => {
            cancellable.cancel();
            return GLib.SOURCE_CONTINUE; // until the end of the transfer removes it
        });
        begin(cancellable, outcome => {
            GLib.source_remove(timer);
            running.delete(cancellable);
            let done = false;
            try {
                done = outcome() && !cancellable.is_cancelled();
            } catch (error) {
                // The owner's fault, or ours for cancelling it; the program is told that it failed.
            }
            end(done);
        });
    }

    _cancel(running) {
        for (const cancellable of running)
            cancellable.cancel();
    }

    _replaced(source) {
        // The Shell may have filled an emptiness before the news of it comes here.
        if (source === null && this._selection.get_mimetypes(CLIPBOARD).length > 0)
            return;
        ++this._count;
        this._cancel(this._transfers);
        this._look(source);
        if (!this._own)
            this._tell();
    }

    _look(source) {
        const offered = this._selection.get_mimetypes(CLIPBOARD).filter(name =>
            !PROTOCOL.includes(name));
        this._formats = offered.filter(name => name.length <= FORMAT_NAME_LIMIT)
            .slice(0, FORMAT_LIMIT);
        this._complete = this._formats.length === offered.length;
        // When the owner of a text goes, the Shell offers the text once more, but without the hint that
        // it is a secret.
        const kept = source instanceof Meta.SelectionSourceMemory && !this._own;
        this._secret = kept && this._wasSecret && !this._formats.includes(SECRET);
        if (this._secret)
            this._formats.push(SECRET);
        if (source !== null)
            this._wasSecret = this._formats.includes(SECRET);
    }

    _state() {
        return new GLib.Variant('(xasb)', [this._count, this._formats, this._complete]);
    }

    _tell() {
        this._program.emit(NAME, 'Changed', this._state());
    }

    // The only descriptor of a call, which is now ours; null if there are none or more. Those of the
    // list itself would stay open until the garbage is collected, and so would a pipe.
    _takeDescriptor(fdList) {
        const fds = fdList ? fdList.steal_fds() : [];
        if (fds.length === 1)
            return fds[0];
        fds.forEach(fd => Gio.UnixInputStream.new(fd, true).close(null));
        return null;
    }
};
