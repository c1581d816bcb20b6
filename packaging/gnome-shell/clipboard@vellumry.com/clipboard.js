// SPDX-License-Identifier: GPL-3.0-or-later
import GLib from 'gi://GLib';
import Gio from 'gi://Gio';
import GioUnix from 'gi://GioUnix';
import Meta from 'gi://Meta';

import * as Main from 'resource:///org/gnome/shell/ui/main.js';

import {CLIPBOARD_INTERFACE} from './interfaces.js';
import {call, Service} from './service.js';

const PEER = 'com.vellumry.Vellumry.Clipboard';
const MUTTER = 'org.gnome.Mutter.RemoteDesktop';
const SESSION_INTERFACE = `${MUTTER}.Session`;
const READING_SECONDS = 10;
const MOST_PRIMARY_BYTES = 1024 * 1024;
/** GNOME puts its copy back in the same turn in which the owner goes. */
const ECHO_MICROSECONDS = 20000;

const KIND_FOREIGN = 0;
const KIND_OURS = 1;
const KIND_KEPT = 2;

/** What stands on the clipboard is the empty text of a lock screen. Extensions are off behind it, and their services gone. */
let isEmptiedByLock = false;

/**
 * The clipboard, to be seen, read and owned.
 *
 * It is owned through the shell's own interface for remote sessions, called from here: an extension cannot make a source
 * of several types itself. Such a session needs no start for that, and shows nothing in the top bar.
 */
export class ClipboardService extends Service {
    constructor() {
        super(CLIPBOARD_INTERFACE, PEER);
    }

    start() {
        this._selection = global.display.get_selection();
        this._serial = 0;
        this._types = [];
        this._isOurs = false;
        this._source = null;
        this._isTaking = false;
        this._isClearing = false;
        this._emptiedAt = 0;
        this._session = null;
        this._signals = 0;
        this._primary = null;
        this._readings = new Set();
        this._queue = Promise.resolve();
        this._changed = this._selection.connect('owner-changed',
            (selection, type, source) => this._follow(type, source));
    }

    stop() {
        this._selection.disconnect(this._changed);
        for (const reading of this._readings)
            reading.cancel();
        this.disownPrimary();
        // A session that ends leaves its source behind, which then answers no request. Without it GNOME brings the text back, as that of
        // any program that ends.
        if (this._isOurs)
            this._selection.unset_owner(Meta.SelectionType.SELECTION_CLIPBOARD, this._source);
        this._source = null;
        this._closeSession();
        this._selection = null;
    }

    follow() {
        const types = this._selection.get_mimetypes(Meta.SelectionType.SELECTION_CLIPBOARD) ?? [];
        this._tell(isEmptiedByLock && types.length === 1 ? [] : types, KIND_FOREIGN);
        isEmptiedByLock = false;
    }

    read([serial, type], fdList) {
        const [descriptor] = fdList.steal_fds();
        const pipe = new GioUnix.OutputStream({fd: descriptor, close_fd: true});
        if (serial !== this._serial) {
            pipe.close(null);
            throw new Error('the clipboard has changed');
        }
        const reading = new Gio.Cancellable();
        this._readings.add(reading);
        const deadline = GLib.timeout_add_seconds(GLib.PRIORITY_DEFAULT, READING_SECONDS, () => {
            reading.isOverdue = true;
            reading.cancel();
            return GLib.SOURCE_REMOVE;
        });
        this._selection.transfer_async(Meta.SelectionType.SELECTION_CLIPBOARD, type, -1, pipe, reading,
            (selection, result) => {
                if (!reading.isOverdue)
                    GLib.source_remove(deadline);
                this._readings.delete(reading);
                try {
                    selection.transfer_finish(result);
                } catch {
                    // The reader sees the end of the pipe.
                }
                pipe.close_async(GLib.PRIORITY_DEFAULT, null, null);
            });
    }

    own([types]) {
        return this._inTurn(async () => {
            await this._openSession();
            this._types = types;
            this._isTaking = true;
            try {
                await call(MUTTER, this._session, SESSION_INTERFACE, 'SetSelection',
                    new GLib.Variant('(a{sv})', [{'mime-types': new GLib.Variant('as', types)}]));
            } finally {
                this._isTaking = false;
            }
        });
    }

    /** GNOME keeps a copy of each text and brings it back when its owner goes; a source without one makes it forget. */
    disown() {
        if (!this._isOurs)
            return;
        const type = Meta.SelectionType.SELECTION_CLIPBOARD;
        const blank = Meta.SelectionSourceMemory.new('application/x-vellumry-nothing', new GLib.Bytes([]));
        this._isClearing = true;
        this._selection.set_owner(type, blank);
        this._isClearing = false;
        this._selection.unset_owner(type, blank);
    }

    async take([request]) {
        const [answer, fdList] = await call(MUTTER, this._session, SESSION_INTERFACE, 'SelectionWrite',
            new GLib.Variant('(u)', [request]));
        call(MUTTER, this._session, SESSION_INTERFACE, 'SelectionWriteDone',
            new GLib.Variant('(ub)', [request, true])).catch(() => {});
        return {values: answer.deepUnpack(), fdList};
    }

    ownPrimary([text]) {
        if (text.length > MOST_PRIMARY_BYTES)
            throw new Error('too long');
        this._primary = Meta.SelectionSourceMemory.new('text/plain;charset=utf-8', new GLib.Bytes(text));
        this._selection.set_owner(Meta.SelectionType.SELECTION_PRIMARY, this._primary);
    }

    disownPrimary() {
        if (this._primary)
            this._selection.unset_owner(Meta.SelectionType.SELECTION_PRIMARY, this._primary);
        this._primary = null;
    }

    sync() {
        return this._inTurn(() => {});
    }

    /** One after the other, in the order of the calls. */
    _inTurn(work) {
        const done = this._queue.then(work);
        this._queue = done.catch(() => {});
        return done.then(() => []);
    }

    _tell(types, kind) {
        this._serial++;
        this.emit('OwnerChanged', '(uasu)', [this._serial, types, kind]);
    }

    /**
     * Before it locks the screen the shell puts an empty text on the clipboard, which is no copy, and after which nothing of ours is
     * given up: whether it does so is known when this turn is over.
     */
    async _tellUnlessLocking(types) {
        const serial = ++this._serial;
        await null;
        isEmptiedByLock = Main.sessionMode.isLocked;
        if (!isEmptiedByLock && serial === this._serial)
            this.emit('OwnerChanged', '(uasu)', [serial, types, KIND_FOREIGN]);
    }

    _follow(type, source) {
        if (type !== Meta.SelectionType.SELECTION_CLIPBOARD || this._isClearing)
            return;
        const types = source?.get_mimetypes() ?? [];
        const sourceType = source?.constructor.$gtype?.name;
        const now = GLib.get_monotonic_time();
        let kind = KIND_FOREIGN;
        if (sourceType === 'MetaSelectionSourceRemote' && types.join('\n') === this._types.join('\n'))
            kind = KIND_OURS;
        else if (sourceType === 'MetaSelectionSourceMemory' && now - this._emptiedAt < ECHO_MICROSECONDS)
            kind = KIND_KEPT;
        this._isOurs = kind === KIND_OURS;
        this._source = this._isOurs ? source : null;
        this._emptiedAt = source ? 0 : now;
        if (kind === KIND_FOREIGN && sourceType === 'MetaSelectionSourceMemory')
            this._tellUnlessLocking(types);
        else
            this._tell(types, kind);
    }

    async _openSession() {
        if (this._session)
            return;
        const [answer] = await call(MUTTER, '/org/gnome/Mutter/RemoteDesktop', MUTTER, 'CreateSession');
        const [session] = answer.deepUnpack();
        if (!this.isRunning) {
            call(MUTTER, session, SESSION_INTERFACE, 'Stop').catch(() => {});
            throw new Error('the program has gone');
        }
        this._session = session;
        this._signals = Gio.DBus.session.signal_subscribe(
            MUTTER, SESSION_INTERFACE, null, session, null, Gio.DBusSignalFlags.NONE,
            (connection, sender, path, iface, name, parameters) => this._hear(name, parameters));
        await call(MUTTER, session, SESSION_INTERFACE, 'EnableClipboard', new GLib.Variant('(a{sv})', [{}]));
    }

    _hear(name, parameters) {
        if (name === 'SelectionTransfer') {
            // GNOME reads what is new in the same turn: its wish comes before the answer that the clipboard is ours.
            this.emit('Wanted', '(sub)', [...parameters.deepUnpack(), this._isTaking]);
        } else if (name === 'Closed') {
            this._forgetSession();
            this.emit('Lost', '()', []);
        }
    }

    _forgetSession() {
        if (this._signals)
            Gio.DBus.session.signal_unsubscribe(this._signals);
        this._signals = 0;
        this._session = null;
        this._isOurs = false;
    }

    _closeSession() {
        const session = this._session;
        this._forgetSession();
        if (session)
            call(MUTTER, session, SESSION_INTERFACE, 'Stop').catch(() => {});
    }
}
