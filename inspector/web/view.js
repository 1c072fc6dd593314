// A message on the page: its bytes on the left, its tree on the right, each with the selected field marked. Only the
// lines that can be seen are in the document.
'use strict';

/** @typedef {{number: number, name: string, kind: string, message?: string, content?: string}} Field */
/** @typedef {{name: string, fields: Field[]}} Message */

const ROW = {value: 0, record: 1, unknown: 2, undecoded: 3, fault: 4, unread: 5, absent: 6};
const ROW_NUMBERS = 8; // of each row, see module.h
const TALLEST_PX = 8e6; // browsers give up on taller elements
const TEXTS_AT_ONCE = 200;

/** @param {string} tag @param {Record<string, string>} [attributes] @param {...(Node | string)} inside */
function element(tag, attributes = {}, ...inside) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes))
        made.setAttribute(name, value);
    made.append(...inside);
    return made;
}

/**
 * The number that an element around the place of an event has as data, -1: none has.
 * @param {Event} event
 * @param {string} name
 */
function numberAt(event, name) {
    /** @type {HTMLElement | null} */
    const holder = /** @type {HTMLElement} */ (event.target).closest(`[data-${name}]`);
    return Number(holder?.dataset[name] ?? -1);
}

/** @param {number} byte */
function hexOf(byte) {
    return byte.toString(16).padStart(2, '0');
}

// What a text may hold that would be seen as something else: direction marks, control characters, invisible ones.
/** @param {string} text */
function inert(text) {
    return text.replace(/[\u0000-\u001f\u007f-\u009f\u061c\u200b-\u200f\u2028-\u202e\u2060-\u206f\ufeff]/g,
        (character) => `\\u${character.charCodeAt(0).toString(16).padStart(4, '0')}`);
}

/** The rows of a message, as the module writes them. */
class Rows {
    /** @param {Uint8Array} bytes @param {Message[]} catalogue */
    constructor(bytes, catalogue) {
        /** @type {Int32Array} */
        this.numbers = new Int32Array(bytes.buffer, bytes.byteOffset, bytes.byteLength / 4);
        this.catalogue = catalogue;
        this.count = this.numbers.length / ROW_NUMBERS;
        this.parents = new Int32Array(this.count).fill(-1);
        const holders = new Int32Array(this.count);
        let held = 0;
        /** @type {number[]} */
        const open = []; // the last record of each depth
        this.fault = -1;
        for (let row = 0; row < this.count; ++row) {
            const kind = this.kind(row);
            const depth = this.depth(row);
            if (depth > 0 && kind !== ROW.unread)
                this.parents[row] = open[depth - 1] ?? -1;
            if (kind === ROW.record)
                open[depth] = row;
            if (kind === ROW.fault)
                this.fault = row;
            else if (kind !== ROW.absent)
                holders[held++] = row;
        }
        this.holders = holders.subarray(0, held); // of bytes, in their order
    }

    /** @param {number} row */ kind(row) { return this.numbers[row * ROW_NUMBERS] & 0xFF; }
    /** @param {number} row @returns {number} */ depth(row) { return (this.numbers[row * ROW_NUMBERS] >> 8) & 0xFF; }
    /** @param {number} row */ hasNotes(row) { return (this.numbers[row * ROW_NUMBERS] & 65536) !== 0; }
    /** @param {number} row */ offset(row) { return this.numbers[row * ROW_NUMBERS + 1]; }
    /** @param {number} row */ lengthOffset(row) { return this.numbers[row * ROW_NUMBERS + 2]; }
    /** @param {number} row */ valueOffset(row) { return this.numbers[row * ROW_NUMBERS + 3]; }
    /** @param {number} row */ valueBytes(row) { return this.numbers[row * ROW_NUMBERS + 4]; }
    /** @param {number} row */ end(row) { return this.valueOffset(row) + this.valueBytes(row); }
    /** @param {number} row */ message(row) { return this.catalogue[this.numbers[row * ROW_NUMBERS + 5]]; }
    /** @param {number} row */ number(row) { return this.numbers[row * ROW_NUMBERS + 6] >>> 0; }
    /** @param {number} row */ index(row) { return this.numbers[row * ROW_NUMBERS + 7]; }

    /** @param {number} row */
    field(row) {
        const kind = this.kind(row);
        if (kind === ROW.unknown || kind >= ROW.fault)
            return undefined;
        return this.message(row).fields[this.number(row) - 1];
    }

    /** @param {number} row */
    name(row) {
        return this.field(row)?.name ?? `#${this.number(row)}`;
    }

    /**
     * The row that has a byte, -1: there is none.
     * @param {number} offset
     */
    at(offset) {
        let low = 0;
        let high = this.holders.length;
        while (low < high) {
            const middle = (low + high) >> 1;
            if (this.offset(this.holders[middle]) <= offset)
                low = middle + 1;
            else
                high = middle;
        }
        return low === 0 ? -1 : this.holders[low - 1];
    }

    /**
     * "tag", "length" or "value".
     * @param {number} row
     * @param {number} offset
     */
    partAt(row, offset) {
        if (this.kind(row) === ROW.unread || offset >= this.end(row))
            return 'unread'; // the latter: of the field that could not be decoded
        if (offset < this.lengthOffset(row))
            return 'tag';
        return offset < this.valueOffset(row) ? 'length' : 'value';
    }

    /**
     * "/qos/3/field_2".
     * @param {number} row
     * @returns {string}
     */
    pointer(row) {
        if (row < 0)
            return '';
        const index = this.index(row) >= 0 ? `/${this.index(row)}` : '';
        return `${this.pointer(this.parents[row])}/${this.name(row)}${index}`;
    }

    /**
     * "qos[3].field_2", as sentences have it.
     * @param {number} row
     * @returns {string}
     */
    path(row) {
        if (row < 0)
            return '';
        const above = this.path(this.parents[row]);
        const index = this.index(row) >= 0 ? `[${this.index(row)}]` : '';
        return `${above === '' ? '' : `${above}.`}${this.name(row)}${index}`;
    }

    /**
     * The absent fields of an "absent" row.
     * @param {number} row
     */
    absent(row) {
        return this.message(row).fields.filter((field) => (this.number(row) >>> (field.number - 1) & 1) === 0);
    }
}

/** A list of lines of one height in an element that scrolls. */
class LineList {
    /**
     * @param {HTMLElement} box
     * @param {number} lineHeight in pixels
     * @param {(line: number) => HTMLElement} makeLine
     */
    constructor(box, lineHeight, makeLine) {
        this.box = box;
        this.lineHeight = lineHeight;
        this.makeLine = makeLine;
        this.count = 0;
        this.first = 0;
        this.shown = 0;
        this.spacer = element('div', {class: 'spacer', role: 'presentation'});
        this.window = element('div', {class: 'window', role: 'presentation'});
        this.spacer.append(this.window);
        box.append(this.spacer);
        box.addEventListener('scroll', () => this.draw());
        new ResizeObserver(() => this.draw()).observe(box);
    }

    /** @param {number} count */
    setCount(count) {
        this.count = count;
        this.height = Math.min(count * this.lineHeight, TALLEST_PX);
        this.spacer.style.height = `${this.height}px`;
        this.draw();
    }

    /** How many lines fit. */
    fitting() {
        return Math.ceil(this.box.clientHeight / this.lineHeight) + 1;
    }

    /** The largest first line, and the largest scroll position. */
    range() {
        const scroll = Math.max(1, (this.height ?? 0) - this.box.clientHeight);
        return {lines: Math.max(0, this.count - Math.floor(this.box.clientHeight / this.lineHeight)), scroll};
    }

    draw() {
        const {lines, scroll} = this.range();
        const share = Math.min(1, this.box.scrollTop / scroll);
        const exact = (this.height ?? 0) < TALLEST_PX;
        this.first = exact ? Math.floor(this.box.scrollTop / this.lineHeight) : Math.round(share * lines);
        this.shown = Math.max(0, Math.min(this.count - this.first, this.fitting()));
        const top = exact ? this.first * this.lineHeight : this.box.scrollTop;
        this.window.style.transform = `translateY(${top}px)`;
        const made = [];
        for (let line = this.first; line < this.first + this.shown; ++line)
            made.push(this.makeLine(line));
        this.window.replaceChildren(...made);
    }

    /** @param {number} line */
    show(line) {
        const whole = Math.max(1, Math.floor(this.box.clientHeight / this.lineHeight));
        if (line >= this.first && line < this.first + whole)
            return;
        const first = Math.max(0, line - (whole >> 1));
        const {lines, scroll} = this.range();
        const exact = (this.height ?? 0) < TALLEST_PX;
        this.box.scrollTop = exact ? first * this.lineHeight : Math.min(1, first / Math.max(1, lines)) * scroll;
        this.draw();
    }
}

/** Bytes and tree of one message. */
class MessageView {
    /**
     * @param {{bytes: HTMLElement, tree: HTMLElement, id: string, selected: (row: number) => void,
     *          typed: (offset: number, digit: number | string) => void,
     *          key: (event: KeyboardEvent, row: number) => boolean,
     *          texts: (first: number, count: number) => Promise<{text: string, notes: string[]}[]>}} parts
     */
    constructor(parts) {
        this.parts = parts;
        /** @type {Uint8Array} */
        this.data = new Uint8Array(0);
        this.rows = new Rows(new Uint8Array(0), []);
        this.row = -1;
        this.offset = 0;
        this.hovered = -1;
        /** @type {Set<string>} */
        this.different = new Set();
        /** @type {Map<number, {text: string, notes: string[]}>} */
        this.texts = new Map();
        this.wanted = -1;
        this.perLine = 16;
        this.bytes = new LineList(parts.bytes, 24, (line) => this.byteLine(line));
        this.tree = new LineList(parts.tree, 26, (line) => this.treeLine(line));
        this.listen();
    }

    /** @param {Uint8Array} data @param {Rows} rows */
    set(data, rows) {
        this.data = data;
        this.rows = rows;
        this.texts = new Map();
        this.wanted = -1;
        this.row = Math.min(this.row, rows.count - 1);
        this.offset = Math.min(this.offset, Math.max(0, data.length - 1));
        this.perLine = this.parts.bytes.clientWidth < 460 ? 8 : 16;
        this.bytes.setCount(Math.ceil(data.length / this.perLine));
        this.tree.setCount(rows.count);
        if (this.row < 0 && rows.count > 0)
            this.row = 0;
        this.parts.selected(this.row);
    }

    draw() {
        this.bytes.draw();
        this.tree.draw();
    }

    /** @param {number} row @param {number} [offset] */
    select(row, offset) {
        if (row < 0 || row >= this.rows.count)
            return;
        this.row = row;
        this.offset = Math.min(offset ?? this.rows.offset(row), Math.max(0, this.data.length - 1));
        this.bytes.show(Math.floor(this.offset / this.perLine));
        this.tree.show(row);
        this.draw();
        this.parts.selected(row);
    }

    // ---- lines ----

    /** @param {number} line */
    byteLine(line) {
        const begin = line * this.perLine;
        const made = element('div', {role: 'row', class: 'line', 'aria-rowindex': `${line + 1}`},
            element('span', {class: 'offset', role: 'rowheader'}, begin.toString().padStart(6, '\u2007')));
        const end = Math.min(begin + this.perLine, this.data.length);
        for (let offset = begin; offset < end; ++offset)
            made.append(this.byteCell(offset));
        return made;
    }

    /** @param {number} offset */
    byteCell(offset) {
        const row = this.rows.at(offset);
        const part = row < 0 ? 'unread' : this.rows.partAt(row, offset);
        const classes = ['byte', part, `hue${row < 0 ? 0 : this.rows.number(row) % 8}`];
        if (this.isInside(this.row, offset))
            classes.push('selected');
        if (this.isInside(this.hovered, offset))
            classes.push('hovered');
        if (this.rows.fault >= 0 && offset === this.rows.offset(this.rows.fault))
            classes.push('wrong');
        const shown = hexOf(this.data[offset]);
        const owner = row < 0 || part === 'unread' ? '' : ` of ${this.rows.name(row)}`;
        const cell = element('span', {
            class: classes.join(' '), role: 'gridcell', id: `${this.parts.id}-byte-${offset}`,
            'data-offset': `${offset}`, 'aria-selected': `${offset === this.offset}`,
            'aria-label': `${shown}, byte ${offset}, ${part}${owner}`,
        }, shown);
        if (offset === this.offset)
            this.parts.bytes.setAttribute('aria-activedescendant', cell.id);
        return cell;
    }

    /** @param {number} row @param {number} offset */
    isInside(row, offset) {
        return row >= 0 && row < this.rows.count && offset >= this.rows.offset(row) && offset < this.rows.end(row);
    }

    /** @param {number} row */
    treeLine(row) {
        const rows = this.rows;
        const kind = rows.kind(row);
        const classes = ['line', Object.keys(ROW)[kind]];
        if (row === this.row)
            classes.push('selected');
        if (row === this.hovered)
            classes.push('hovered');
        if (this.different.size > 0 && kind <= ROW.unknown && this.different.has(rows.path(row)))
            classes.push('different');
        const made = element('div', {
            role: 'treeitem', class: classes.join(' '), id: `${this.parts.id}-row-${row}`, 'data-row': `${row}`,
            'aria-level': `${rows.depth(row) + 1}`, 'aria-selected': `${row === this.row}`,
            'aria-posinset': `${row + 1}`, 'aria-setsize': `${rows.count}`,
        });
        made.style.paddingInlineStart = `${0.5 + 1.1 * Math.min(rows.depth(row), 8)}rem`;
        made.append(...this.treeCells(row, kind));
        if (row === this.row)
            this.parts.tree.setAttribute('aria-activedescendant', made.id);
        return made;
    }

    /** @param {number} row @param {number} kind */
    treeCells(row, kind) {
        const rows = this.rows;
        const told = this.texts.get(row);
        if (told === undefined)
            this.wantTexts(row);
        if (kind === ROW.absent) {
            const absent = rows.absent(row).map((field) => `${field.number} ${field.name}`).join(', ');
            return [element('span', {class: 'kind'}, `absent: ${absent}`)];
        }
        if (kind === ROW.fault)
            return [element('span', {class: 'wrong'}, `decoding ends here: ${inert(told?.text ?? '')}`)];
        if (kind === ROW.unread)
            return [element('span', {class: 'kind'}, `not read: ${rows.valueBytes(row)} bytes`)];
        const index = rows.index(row) >= 0 ? `[${rows.index(row)}]` : '';
        const field = rows.field(row);
        const isRecord = kind === ROW.record;
        const content = field?.message && (isRecord || kind === ROW.undecoded) ? ` ${field.message}` : '';
        const cells = [
            element('span', {class: `number hue${rows.number(row) % 8}`}, `${rows.number(row)}`),
            element('span', {class: 'name'}, `${field ? field.name : 'unknown field'}${index}`),
            element('span', {class: 'kind'}, `${field ? field.kind.replace(/^array of (.*)s$/, '$1') : ''}${content}`),
            element('span', {class: 'text'}, isRecord ? `${rows.valueBytes(row)} bytes` : inert(told?.text ?? '…')),
        ];
        if (kind === ROW.undecoded)
            cells.push(element('span', {class: 'wrong'}, 'not decoded'));
        if (told && told.notes.length > 0)
            cells.push(element('span', {class: 'note'}, inert(`note: ${told.notes.join('; ')}`)));
        return cells;
    }

    /**
     * Fetches the texts around a row, once.
     * @param {number} row
     */
    wantTexts(row) {
        const first = row - row % TEXTS_AT_ONCE;
        if (this.wanted === first)
            return;
        this.wanted = first;
        const rows = this.rows;
        this.parts.texts(first, TEXTS_AT_ONCE).then((texts) => {
            if (rows !== this.rows)
                return;
            if (this.texts.size > 20 * TEXTS_AT_ONCE)
                this.texts.clear();
            texts.forEach((told, i) => this.texts.set(first + i, told));
            this.wanted = -1;
            this.tree.draw();
            if (this.row >= first && this.row < first + texts.length)
                this.parts.selected(this.row);
        });
    }

    // ---- pointer and keyboard ----

    listen() {
        const {bytes, tree} = this.parts;
        const offsetOf = (/** @type {Event} */ event) => numberAt(event, 'offset');
        const rowOf = (/** @type {Event} */ event) => numberAt(event, 'row');
        bytes.addEventListener('pointerover', (event) => this.hover(this.rows.at(offsetOf(event))));
        bytes.addEventListener('pointerleave', () => this.hover(-1));
        tree.addEventListener('pointerover', (event) => this.hover(rowOf(event)));
        tree.addEventListener('pointerleave', () => this.hover(-1));
        bytes.addEventListener('click', (event) => {
            if (offsetOf(event) >= 0)
                this.select(this.rows.at(offsetOf(event)), offsetOf(event));
        });
        tree.addEventListener('click', (event) => this.select(rowOf(event)));
        bytes.addEventListener('keydown', (event) => this.byteKey(event));
        tree.addEventListener('keydown', (event) => this.treeKey(event));
    }

    /** @param {number} row */
    hover(row) {
        if (row === this.hovered)
            return;
        this.hovered = row;
        this.draw();
    }

    /** @param {KeyboardEvent} event */
    byteKey(event) {
        const page = this.perLine * (this.bytes.fitting() - 1);
        const steps = /** @type {Record<string, number>} */ ({ArrowLeft: -1, ArrowRight: 1, ArrowUp: -this.perLine,
            ArrowDown: this.perLine, PageUp: -page, PageDown: page, Home: -Infinity, End: Infinity});
        if (event.ctrlKey || event.metaKey || event.altKey)
            return;
        if (event.key in steps) {
            event.preventDefault();
            const offset = Math.max(0, Math.min(this.data.length - 1, this.offset + steps[event.key]));
            this.select(this.rows.at(offset), offset);
        } else if (/^[0-9a-fA-F]$/.test(event.key)) {
            event.preventDefault();
            this.parts.typed(this.offset, parseInt(event.key, 16));
        } else if (event.key === 'Insert' || event.key === 'Delete') {
            event.preventDefault();
            this.parts.typed(this.offset, event.key);
        }
    }

    /** @param {KeyboardEvent} event */
    treeKey(event) {
        if (event.ctrlKey || event.metaKey || event.altKey)
            return;
        const page = this.tree.fitting() - 1;
        const steps = /** @type {Record<string, number>} */ ({ArrowUp: -1, ArrowDown: 1, PageUp: -page, PageDown: page,
            Home: -Infinity, End: Infinity});
        if (event.key in steps) {
            event.preventDefault();
            this.select(Math.max(0, Math.min(this.rows.count - 1, this.row + steps[event.key])));
        } else if (event.key === 'ArrowLeft' && this.rows.parents[this.row] >= 0) {
            event.preventDefault();
            this.select(this.rows.parents[this.row]);
        } else if (this.parts.key(event, this.row)) {
            event.preventDefault();
        }
    }
}
