// SPDX-License-Identifier: GPL-3.0-or-later
import Gio from 'gi://Gio';
import GLib from 'gi://GLib';

const OBJECT_PATH = '/com/vellumry/GnomeShell';

/**
 * Calls a method on the session bus.
 *
 * @param {string} service - a bus name
 * @param {string} path - an object of it
 * @param {string} iface - an interface of that
 * @param {string} method - a method of that
 * @param {?GLib.Variant} parameters - its arguments
 * @returns {Promise<[GLib.Variant, ?Gio.UnixFDList]>} what it answered
 */
export function call(service, path, iface, method, parameters = null) {
    return new Promise((resolve, reject) => {
        Gio.DBus.session.call_with_unix_fd_list(
            service, path, iface, method, parameters, null, Gio.DBusCallFlags.NONE, -1, null, null,
            (connection, result) => {
                try {
                    resolve(connection.call_with_unix_fd_list_finish(result));
                } catch (error) {
                    reject(error);
                }
            });
    });
}

/**
 * A list of descriptors keeps them open until it is collected: readers would wait for the end of their pipes.
 *
 * @param {Gio.UnixFDList} fdList - descriptors that were handed to the bus
 */
function closeWhenSent(fdList) {
    Gio.DBus.session.flush(null, () => {
        for (const descriptor of fdList.steal_fds())
            GLib.close(descriptor);
    });
}

/**
 * An interface on the session bus for the owner of one bus name. Calls of anybody else are refused, and signals go to
 * that owner alone. Subclasses have a method `methodName(arguments, fdList)` for each method of the interface, which
 * returns its results as an array, or a promise of them.
 */
export class Service {
    /**
     * @param {string} xml - the interface
     * @param {string} peerName - the bus name of the one program that may call
     */
    constructor(xml, peerName) {
        this._info = Gio.DBusNodeInfo.new_for_xml(xml).interfaces[0];
        this._peerName = peerName;
        this._peer = null;
        for (const method of this._info.methods)
            this[`${method.name}Async`] = (args, invocation) => this._handle(method, args, invocation);
        this._exported = Gio.DBusExportedObject.wrapJSObject(this._info, this);
        this._exported.export(Gio.DBus.session, OBJECT_PATH);
        this._watch = Gio.bus_watch_name_on_connection(
            Gio.DBus.session, peerName, Gio.BusNameWatcherFlags.NONE,
            (connection, name, owner) => this._meet(owner), () => this._meet(null));
    }

    destroy() {
        Gio.bus_unwatch_name(this._watch);
        this._meet(null);
        this._exported.unexport();
        this._exported = null;
    }

    /** The program runs. */
    start() {
    }

    /** It does not any more: everything that was done for it is undone. */
    stop() {
    }

    /** @returns {boolean} whether the program runs */
    get isRunning() {
        return this._peer !== null;
    }

    /**
     * @param {string} name - of a signal
     * @param {string} signature - of its arguments
     * @param {Array} args - them
     */
    emit(name, signature, args) {
        if (this._peer) {
            Gio.DBus.session.emit_signal(
                this._peer, OBJECT_PATH, this._info.name, name, new GLib.Variant(signature, args));
        }
    }

    /** @returns {Promise<number>} the process of the program */
    async peerProcess() {
        const [answer] = await call(
            'org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus', 'GetConnectionUnixProcessID',
            new GLib.Variant('(s)', [this._peer]));
        return answer.deepUnpack()[0];
    }

    _meet(owner) {
        if (owner === this._peer)
            return;
        if (this._peer)
            this.stop();
        this._peer = owner;
        if (owner)
            this.start();
    }

    /** The name's new owner may have called before the bus has told us of it. */
    async _admit(sender) {
        if (sender === this._peer)
            return true;
        const [answer] = await call(
            'org.freedesktop.DBus', '/org/freedesktop/DBus', 'org.freedesktop.DBus', 'GetNameOwner',
            new GLib.Variant('(s)', [this._peerName]));
        if (answer.deepUnpack()[0] !== sender || !this._exported)
            return false;
        this._meet(sender);
        return true;
    }

    async _handle(method, args, invocation) {
        const name = method.name[0].toLowerCase() + method.name.slice(1);
        try {
            if (!await this._admit(invocation.get_sender()))
                throw new Error('for Vellumry alone');
            const result = await this[name](args, invocation.get_message().get_unix_fd_list());
            const [values, fdList] = result?.fdList ? [result.values, result.fdList] : [result ?? [], null];
            const signature = method.out_args.map(arg => arg.signature).join('');
            invocation.return_value_with_unix_fd_list(new GLib.Variant(`(${signature})`, values), fdList);
            if (fdList)
                closeWhenSent(fdList);
        } catch (error) {
            invocation.return_dbus_error('com.vellumry.GnomeShell.Error', error.message ?? String(error));
        }
    }
}
