// The program's icon in the Shell's panel, with the menu that the program has for it. It is there while
// the program has a name for it on the bus.

const {Clutter, Gio, GLib, GObject, St} = imports.gi;
const Main = imports.ui.main;
const PanelMenu = imports.ui.panelMenu;
const PopupMenu = imports.ui.popupMenu;
const Util = imports.misc.util;

const {NAME: PROGRAM} = imports.misc.extensionUtils.getCurrentExtension().imports.program;

const PATH = '/org/nerlo/NerloPro/Panel';
const INTERFACE = 'org.nerlo.NerloPro.Panel';
const ICON = 'org.nerlo.NerloPro.StatusItem';

const ICONS = ['idle', 'automatic', 'problem'];
const ROWS = '(ssa(iuuss))';
const FLAGS = {ENABLED: 1, CHECKABLE: 2, CHECKED: 4, SEPARATOR: 8, MENU: 16};
// More are nonsense, and are left off.
const ROW_LIMIT = 1000;

function call(method, parameters, replyType = null, answer = null) {
    Gio.DBus.session.call(PROGRAM, PATH, INTERFACE, method, parameters,
        replyType && new GLib.VariantType(replyType), Gio.DBusCallFlags.NO_AUTO_START, -1, null,
        (bus, result) => {
            try {
                answer?.(bus.call_finish(result).deepUnpack());
            } catch (error) {
                // The program has gone meanwhile, and the button with it.
            }
        });
}

const Button = GObject.registerClass(
class NerloProButton extends PanelMenu.Button {
    _init(program) {
        super._init(0.5, 'Nerlo Pro');
        this._program = program;
        this._icon = new St.Icon({style_class: 'system-status-icon'});
        this.add_child(this._icon);
        this._items = [];
        this._ids = [];
        this._rows = new PopupMenu.PopupMenuSection();
        this.menu.addMenuItem(this._rows);
        this._scrollRows();
        this.setIcon('idle', 'Nerlo Pro');
        // The menu is opened with the rows that it had, which takes longer than the answer.
        this.menu.connect('open-state-changed', (_menu, open) => {
            if (open)
                this.ask();
        });
        this.ask();
    }

    // An open menu in the menu may need more height than the screen has; then all of it scrolls.
    _scrollRows() {
        const {actor} = this._rows;
        this.menu.box.remove_actor(actor);
        this._scroll = new St.ScrollView({hscrollbar_policy: St.PolicyType.NEVER});
        this._scroll.add_actor(actor);
        this.menu.box.add_actor(this._scroll);
    }

    ask() {
        call('Rows', null, ROWS, ([icon, title, rows]) => {
            this.setIcon(icon, title);
            this._show(rows.slice(0, ROW_LIMIT));
        });
    }

    setIcon(icon, title) {
        this._icon.icon_name =
            `${PROGRAM}-${ICONS.includes(icon) ? icon : ICONS[0]}-symbolic`;
        this.accessible_name = title;
    }

    // Rows that only differ in what they say stay where they are, under the pointer.
    _show(rows) {
        const shape = JSON.stringify(rows.map(([, depth, flags]) =>
            [depth, flags & (FLAGS.CHECKABLE | FLAGS.SEPARATOR | FLAGS.MENU)]));
        if (shape !== this._shape) {
            this._shape = shape;
            this._build(rows);
        }
        rows.forEach(([id, _depth, flags, title, keys], place) => {
            const item = this._items[place];
            this._ids[place] = id;
            if (item.label.text !== title)
                item.label.text = title;
            if (flags & (FLAGS.SEPARATOR | FLAGS.MENU))
                return;
            item.setSensitive((flags & FLAGS.ENABLED) !== 0);
            item.keys.text = keys;
            if (flags & FLAGS.CHECKABLE) {
                item.setOrnament(flags & FLAGS.CHECKED
                    ? PopupMenu.Ornament.CHECK : PopupMenu.Ornament.NONE);
            }
        });
    }

    // The Shell has menus in a menu, but none in those: they are parts of it, with a title.
    _build(rows) {
        this._rows.removeAll();
        const menus = [this._rows];
        this._items = rows.map(([, depth, flags], place) => {
            const parent = menus[Math.min(depth, menus.length - 1)];
            let item;
            const ends = menus.length - 1 > depth && depth > 0;
            menus.length = Math.min(depth, menus.length - 1) + 1;
            if (flags & FLAGS.MENU && parent === this._rows) {
                item = new PopupMenu.PopupSubMenuMenuItem('');
                item.menu._needsScrollbar = () => false; // it would get the height of a bar
                menus.push(item.menu);
            } else if (flags & (FLAGS.MENU | FLAGS.SEPARATOR)) {
                item = new PopupMenu.PopupSeparatorMenuItem();
                if (flags & FLAGS.MENU)
                    menus.push(parent);
            } else {
                item = this._makeRow(place);
            }
            if (ends && !(flags & (FLAGS.MENU | FLAGS.SEPARATOR)))
                parent.addMenuItem(new PopupMenu.PopupSeparatorMenuItem()); // a part has no other end
            parent.addMenuItem(item);
            item.connect('key-focus-in', () => Util.ensureActorVisibleInScrollView(this._scroll, item));
            return item;
        });
    }

    _makeRow(place) {
        const item = new PopupMenu.PopupMenuItem('');
        item.label.x_expand = true;
        item.keys = new St.Label({opacity: 160, y_align: Clutter.ActorAlign.CENTER});
        item.add_child(item.keys);
        item.connect('activate', () => {
            this._program.acted(global.get_current_time());
            call('Run', new GLib.Variant('(i)', [this._ids[place]]));
        });
        return item;
    }
});

var Panel = class {
    constructor(program) {
        this._program = program;
        this._wanted = false;
        this._watch = Gio.bus_watch_name(Gio.BusType.SESSION, ICON, Gio.BusNameWatcherFlags.NONE,
            () => this._setWanted(true), () => this._setWanted(false));
        this._session = Main.sessionMode.connect('updated', () => this._show());
        this._changes = Gio.DBus.session.signal_subscribe(PROGRAM, INTERFACE, 'IconChanged', PATH,
            null, Gio.DBusSignalFlags.NONE, (_bus, _sender, _path, _interface, _signal, parameters) => {
                if (parameters.get_type_string() === '(ss)')
                    this._button?.setIcon(...parameters.deepUnpack());
            });
    }

    destroy() {
        Gio.bus_unwatch_name(this._watch);
        Main.sessionMode.disconnect(this._session);
        Gio.DBus.session.signal_unsubscribe(this._changes);
        this._setWanted(false);
    }

    _setWanted(wanted) {
        this._wanted = wanted;
        this._show();
    }

    _show() {
        if (!this._wanted || Main.sessionMode.isLocked) {
            this._button?.destroy();
            this._button = null;
        } else if (!this._button) {
            this._button = new Button(this._program);
            Main.panel.addToStatusArea(PROGRAM, this._button);
        }
    }
};
