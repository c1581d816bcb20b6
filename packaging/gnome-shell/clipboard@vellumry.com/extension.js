// SPDX-License-Identifier: GPL-3.0-or-later
import Gio from 'gi://Gio';

import {Extension} from 'resource:///org/gnome/shell/extensions/extension.js';

import {ClipboardService} from './clipboard.js';
import {DesktopService} from './desktop.js';

/** What Vellumry sees of us; it asks nothing before the name is there. */
const BUS_NAME = 'com.vellumry.GnomeShell';

export default class VellumryExtension extends Extension {
    enable() {
        this._services = [new ClipboardService(), new DesktopService()];
        this._name = Gio.bus_own_name_on_connection(
            Gio.DBus.session, BUS_NAME, Gio.BusNameOwnerFlags.NONE, null, null);
    }

    disable() {
        Gio.bus_unown_name(this._name);
        for (const service of this._services)
            service.destroy();
        this._name = null;
        this._services = null;
    }
}
