// The program's icon in the Shell's panel, with the commands of its desktop file, which has their names
// in the user's language. It is there while the program has a name for it on the bus.

const {Gio, GLib, GObject, St} = imports.gi;
const Main = imports.ui.main;
const PanelMenu = imports.ui.panelMenu;

const PROGRAM = 'org.nerlo.NerloPro';
const PATH = '/org/nerlo/NerloPro';
const ICON = 'org.nerlo.NerloPro.StatusItem';

const Button = GObject.registerClass(
class NerloProButton extends PanelMenu.Button {
    // Null where the program runs without being installed.
    _init(application) {
        super._init(0.5, 'Nerlo Pro');
        this._icon = new St.Icon({style_class: 'system-status-icon'});
        this.add_child(this._icon);
        this.setAutomatic(false);
        for (const action of application?.list_actions() ?? []) {
            this.menu.addAction(application.get_action_name(action), () =>
                application.launch_action(action, global.create_app_launch_context(0, -1)));
        }
        if (!application)
            this._addCall('Nerlo Pro', 'Preferences');
        // In the Shell's own words, which has one for this in every language.
        this._addCall(_('Quit'), 'Quit');
    }

    _addCall(title, method) {
        this.menu.addAction(title, () => Gio.DBus.session.call(PROGRAM, PATH, PROGRAM, method, null,
            null, Gio.DBusCallFlags.NO_AUTO_START, -1, null, null));
    }

    setAutomatic(on) {
        this._icon.icon_name = `${PROGRAM}-${on ? 'automatic' : 'idle'}-symbolic`;
    }
});

var Panel = class {
    constructor() {
        this._wanted = false;
        this._watch = Gio.bus_watch_name(Gio.BusType.SESSION, ICON, Gio.BusNameWatcherFlags.NONE,
            () => this._setWanted(true), () => this._setWanted(false));
        this._session = Main.sessionMode.connect('updated', () => this._show());
        this._changes = Gio.DBus.session.signal_subscribe(PROGRAM,
            'org.freedesktop.DBus.Properties', 'PropertiesChanged', PATH, PROGRAM,
            Gio.DBusSignalFlags.NONE, (_bus, _sender, _path, _interface, _signal, parameters) => {
                const [, changed] = parameters.deepUnpack();
                if ('AutomaticMode' in changed)
                    this._button?.setAutomatic(changed.AutomaticMode.deepUnpack() === true);
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
            this._button = new Button(Gio.DesktopAppInfo.new(`${PROGRAM}.desktop`));
            Main.panel.addToStatusArea(PROGRAM, this._button);
            this._askAutomatic();
        }
    }

    _askAutomatic() {
        Gio.DBus.session.call(PROGRAM, PATH, 'org.freedesktop.DBus.Properties', 'Get',
            new GLib.Variant('(ss)', [PROGRAM, 'AutomaticMode']), null,
            Gio.DBusCallFlags.NO_AUTO_START, -1, null, (bus, result) => {
                try {
                    const [mode] = bus.call_finish(result).recursiveUnpack();
                    this._button?.setAutomatic(mode === true);
                } catch (error) {
                    // The program has gone meanwhile, and the button with it.
                }
            });
    }
};
