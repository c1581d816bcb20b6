// SPDX-License-Identifier: GPL-3.0-or-later
import Clutter from 'gi://Clutter';
import GLib from 'gi://GLib';
import Meta from 'gi://Meta';
import Shell from 'gi://Shell';

import * as Main from 'resource:///org/gnome/shell/ui/main.js';

import {DESKTOP_INTERFACE} from './interfaces.js';
import {Service} from './service.js';

const PEER = 'com.vellumry.Vellumry.Desktop';
const MODIFIERS = Clutter.ModifierType.SHIFT_MASK | Clutter.ModifierType.CONTROL_MASK |
    Clutter.ModifierType.MOD1_MASK | Clutter.ModifierType.MOD4_MASK | Clutter.ModifierType.SUPER_MASK;
const PATIENCE_MILLISECONDS = 10;
const MOST_PATIENCE = 100;

/** Keys, windows and the focus. */
export class DesktopService extends Service {
    constructor() {
        super(DESKTOP_INTERFACE, PEER);
    }

    start() {
        this._keys = new Map(); // by action of the shell: the id
        this._places = new Map(); // by title
        this._windows = new Map(); // of the program: the signals that are listened to
        this._told = new Set(); // windows that were told of
        this._process = 0;
        this._lastFocus = null;
        this._keyboard = null;
        this._waits = new Set();
        this._displaySignals = [
            global.display.connect('accelerator-activated', (display, action) => this._press(action)),
            global.display.connect('notify::focus-window', () => this._tellFocus()),
            global.display.connect('window-created', (display, window) => this._meetWindow(window)),
        ];
        this._destroyed = global.window_manager.connect('destroy', (manager, actor) => this._tellEnd(actor.meta_window));
    }

    stop() {
        for (const signal of this._displaySignals)
            global.display.disconnect(signal);
        global.window_manager.disconnect(this._destroyed);
        for (const action of this._keys.keys())
            this._ungrab(action);
        for (const window of [...this._windows.keys()])
            this._partWindow(window);
        for (const wait of this._waits)
            GLib.source_remove(wait);
        this._keys = null;
        this._places = null;
        this._told = null;
        this._waits = null;
        this._lastFocus = null;
        this._keyboard = null;
    }

    async watch() {
        this._process = await this.peerProcess();
        this._tellFocus();
    }

    grabKey([id, accelerator]) {
        const action = global.display.grab_accelerator(accelerator, Meta.KeyBindingFlags.IGNORE_AUTOREPEAT);
        if (action === Meta.KeyBindingAction.NONE)
            return [false];
        Main.wm.allowKeybinding(Meta.external_binding_name_for_action(action),
            Shell.ActionMode.NORMAL | Shell.ActionMode.OVERVIEW);
        this._keys.set(action, id);
        return [true];
    }

    releaseKey([id]) {
        for (const [action, held] of this._keys) {
            if (held === id)
                this._ungrab(action);
        }
    }

    async pressKeys([codes]) {
        await this._untilNoModifier();
        if (!this.isRunning)
            return;
        this._keyboard ??= global.stage.context.get_backend().get_default_seat()
            .create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE);
        const now = () => GLib.get_monotonic_time();
        for (const code of codes)
            this._keyboard.notify_key(now(), code, Clutter.KeyState.PRESSED);
        for (const code of codes.reverse())
            this._keyboard.notify_key(now(), code, Clutter.KeyState.RELEASED);
    }

    place([title, x, y, wantsKeyboard]) {
        this._places.set(title, {x, y, wantsKeyboard});
        if (wantsKeyboard && Main.overview.visible)
            Main.overview.hide();
        for (const window of this._windows.keys()) {
            if (window.get_title() === title)
                this._settle(window);
        }
    }

    pointerPlace() {
        const index = global.display.get_current_monitor();
        const values = ({x, y, width, height}) => [x, y, width, height];
        return [values(global.display.get_monitor_geometry(index)),
            values(Main.layoutManager.getWorkAreaForMonitor(index))];
    }

    _ungrab(action) {
        global.display.ungrab_accelerator(action);
        Main.wm.allowKeybinding(Meta.external_binding_name_for_action(action), Shell.ActionMode.NONE);
        this._keys.delete(action);
    }

    _press(action) {
        const id = this._keys.get(action);
        if (id !== undefined)
            this.emit('KeyPressed', '(u)', [id]);
    }

    /** A modifier that the user still holds would make another key of what is pressed; a second at most. */
    _untilNoModifier() {
        return new Promise(resolve => {
            let patience = MOST_PATIENCE;
            const isFree = () => !this.isRunning || patience-- <= 0 || (global.get_pointer()[2] & MODIFIERS) === 0;
            if (isFree()) {
                resolve();
                return;
            }
            const wait = GLib.timeout_add(GLib.PRIORITY_DEFAULT, PATIENCE_MILLISECONDS, () => {
                if (!isFree())
                    return GLib.SOURCE_CONTINUE;
                this._waits?.delete(wait);
                resolve();
                return GLib.SOURCE_REMOVE;
            });
            this._waits.add(wait);
        });
    }

    _tellFocus() {
        const window = global.display.focus_window;
        if (window && this._isPassive(window))
            return;
        this._lastFocus = window;
        if (!window) {
            this.emit('FocusChanged', '(tsu)', [0, '', 0]);
            return;
        }
        this._told.add(window.get_id());
        const application = window.get_wm_class() || window.get_gtk_application_id() || '';
        this.emit('FocusChanged', '(tsu)', [window.get_id(), application, Math.max(window.get_pid(), 0)]);
    }

    _tellEnd(window) {
        if (this._lastFocus === window)
            this._lastFocus = null;
        if (this._told.delete(window.get_id()))
            this.emit('WindowClosed', '(t)', [window.get_id()]);
    }

    _isPassive(window) {
        return this._windows.has(window) && this._places.get(window.get_title())?.wantsKeyboard === false;
    }

    /** Its title is known before it is shown. */
    _meetWindow(window) {
        if (!this._process || window.get_pid() !== this._process)
            return;
        Main.wm.skipNextEffect(window.get_compositor_private());
        this._windows.set(window, [
            window.connect('shown', () => this._settle(window)),
            window.connect('focus', () => this._passOn(window)),
            window.connect('unmanaged', () => this._partWindow(window)),
        ]);
    }

    _partWindow(window) {
        for (const signal of this._windows.get(window))
            window.disconnect(signal);
        this._windows.delete(window);
    }

    /** A new window gets the keyboard; one that does not want it hands it on before the other has lost it. */
    _passOn(window) {
        if (!this._isPassive(window))
            return;
        const time = global.display.get_current_time_roundtrip();
        if (this._lastFocus)
            global.display.set_input_focus(this._lastFocus, time);
        else
            global.display.unset_input_focus(time);
    }

    _settle(window) {
        const place = this._places.get(window.get_title());
        if (!place)
            return;
        window.make_above();
        window.stick();
        window.hide_from_window_list?.();
        window.move_frame(true, place.x, place.y);
        if (place.wantsKeyboard && !window.has_focus())
            window.activate(global.display.get_current_time_roundtrip());
    }
}
