// What changes the message that is shown, copies it, or compares it with another one.
'use strict';

const MOST_UNDO_BYTES = 64 << 20;
const LONGEST_COPY_BYTES = 4 << 20;

// ---- edits -------------------------------------------------------------------------------------------------------

/** @param {Uint8Array} bytes */
function change(bytes) {
    state.before.push({bytes: state.bytes, name: state.name});
    state.after = [];
    let held = 0;
    let keep = state.before.length;
    while (keep > 0 && held + state.before[keep - 1].bytes.length <= MOST_UNDO_BYTES)
        held += state.before[--keep].bytes.length;
    state.before.splice(0, keep);
    return show(bytes);
}

/** @param {{bytes: Uint8Array, name: string}[]} from @param {{bytes: Uint8Array, name: string}[]} to */
function step(from, to) {
    const last = from.pop();
    if (last === undefined)
        return;
    to.push({bytes: state.bytes, name: state.name});
    state.name = last.name;
    return show(last.bytes);
}

function showHistory() {
    part('undo').disabled = state.before.length === 0;
    part('redo').disabled = state.after.length === 0;
}

/** @param {number} offset @param {number | string} typed */
function typeByte(offset, typed) {
    const bytes = state.bytes;
    if (typed === 'Insert')
        return change(Uint8Array.from([...bytes.subarray(0, offset), 0, ...bytes.subarray(offset)]));
    if (bytes.length === 0)
        return;
    if (typed === 'Delete') {
        const shorter = new Uint8Array(bytes.length - 1);
        shorter.set(bytes.subarray(0, offset));
        shorter.set(bytes.subarray(offset + 1), offset);
        return change(shorter);
    }
    const digit = Number(typed);
    const isSecond = state.half === offset;
    const changed = bytes.slice();
    changed[offset] = isSecond ? (bytes[offset] & 0xF0) | digit : digit << 4 | (bytes[offset] & 0x0F);
    state.half = isSecond ? -1 : offset;
    if (isSecond && offset + 1 < bytes.length)
        view.offset = offset + 1;
    return change(changed);
}

/** @param {KeyboardEvent} event @param {number} row */
function treeKey(event, row) {
    if (event.key === 'Enter')
        part('value').focus();
    else if (event.key === 'Delete' && row >= 0)
        removeField();
    else
        return false;
    return true;
}

/**
 * The record that a row belongs to, or is; -1: the message itself.
 * @param {number} row
 */
function recordAround(row) {
    const {rows} = view;
    return row >= 0 && rows.kind(row) === ROW.record ? row : row < 0 ? -1 : rows.parents[row];
}

/** @param {number} row */
function showSelected(row) {
    const {rows} = view;
    state.half = state.half === view.offset ? state.half : -1;
    const isField = row >= 0 && rows.kind(row) <= ROW.undecoded;
    const field = row >= 0 ? rows.field(row) : undefined;
    const told = view.texts.get(row);
    part('selected').textContent = isField ? rows.path(row) : row >= 0 ? NO_FIELDS[rows.kind(row)] : '';
    const kind = `${field?.kind ?? 'unknown'} ${field?.message ?? field?.content ?? ''}`;
    part('selected-place').textContent = !isField ? ''
        : `${kind}; bytes ${rows.offset(row)} to ${rows.end(row) - 1}, value from byte ${rows.valueOffset(row)}`;
    say('selected-notes', told?.notes.join('; ') ?? '');
    const canChange = row >= 0 && rows.kind(row) === ROW.value;
    part('value').disabled = !canChange;
    part('apply').disabled = !canChange;
    part('remove').disabled = !isField || rows.kind(row) === ROW.undecoded;
    if (document.activeElement !== part('value'))
        part('value').value = canChange && told && field ? editable(told.text, field) : '';
    offerAbsent(row);
}

/**
 * A value as it is typed.
 * @param {string} text
 * @param {Message['fields'][0]} field
 */
function editable(text, field) {
    const value = text === '(empty)' ? '' : text.replace(/^.* = /, '');
    if (!field.kind.includes('text'))
        return value;
    const parsed = JSON.parse(text);
    return typeof parsed === 'string' ? parsed : text;
}

/** @param {number} row */
function offerAbsent(row) {
    const {rows} = view;
    const record = recordAround(row);
    const message = record < 0 ? catalogue.find((each) => each.name === state.name)
        : catalogue.find((each) => each.name === rows.field(record)?.message);
    const present = new Set();
    const end = record < 0 ? rows.count : Math.min(rows.count, record + 1 + 4096);
    for (let i = record + 1; i < Math.min(end, record + 4096); ++i) {
        if (record >= 0 && rows.depth(i) <= rows.depth(record))
            break;
        if (rows.parents[i] === record && rows.kind(i) <= ROW.record)
            present.add(rows.number(i));
    }
    const options = (message?.fields ?? []).filter(
        (field) => !present.has(field.number) || field.kind.startsWith('array'));
    part('absent').replaceChildren(...options.map((field) =>
        element('option', {value: `${field.number}`}, `${field.number} ${field.name}, ${field.kind}`)));
    part('add').disabled = options.length === 0;
    part('add').dataset.record = `${record}`;
}

/** @param {string} path @param {string | undefined} value JSON; undefined: it is removed */
async function edit(path, value) {
    const head = JSON.stringify({command: 'edit', name: state.name, input: 'shown', path});
    const request = value === undefined ? head : `${head.slice(0, -1)},"value":${value}}`;
    const answer = await inspector.run(request);
    say('edit-refusal', answer.errors);
    if (answer.status === 2)
        return;
    const lost = lossOfEdit();
    await change(answer.bytes);
    if (lost !== '')
        say('edit-refusal', lost);
}

/** What writing the message again leaves behind. */
function lossOfEdit() {
    let unknown = 0;
    for (const row of view.rows.holders)
        unknown += view.rows.kind(row) === ROW.unknown ? 1 : 0;
    const words = [];
    if (unknown > 0)
        words.push(`${unknown} unknown fields`);
    if (state.look.fault)
        words.push('what was not decoded');
    return words.length === 0 ? ''
        : `The library wrote the message again, without ${words.join(' and ')}; Undo brings it back.`;
}

function changeValue() {
    const {rows} = view;
    const field = view.row < 0 ? undefined : rows.field(view.row);
    if (!field)
        return;
    const typed = part('value').value;
    const isLiteral = (field.kind === 'varint' && /^\s*\d+\s*$/.test(typed)) || /^\{"(hex|text)":.*\}$/.test(typed);
    return edit(rows.pointer(view.row), isLiteral ? typed : JSON.stringify(typed));
}

function removeField() {
    const {rows} = view;
    if (view.row < 0 || rows.kind(view.row) > ROW.unknown)
        return;
    if (rows.kind(view.row) !== ROW.unknown)
        return edit(rows.pointer(view.row), undefined);
    // The library does not know it, and would drop all of its kind.
    if (rows.depth(view.row) > 0)
        return say('edit-refusal',
            'An unknown field in a record is removed with its bytes, and the lengths around it.');
    const kept = new Uint8Array(state.bytes.length - (rows.end(view.row) - rows.offset(view.row)));
    kept.set(state.bytes.subarray(0, rows.offset(view.row)));
    kept.set(state.bytes.subarray(rows.end(view.row)), rows.offset(view.row));
    return change(kept);
}

function addField() {
    const {rows} = view;
    const record = Number(part('add').dataset.record);
    const message = catalogue.find((each) => each.name === (record < 0 ? state.name : rows.field(record)?.message));
    const field = message?.fields[Number(part('absent').value) - 1];
    if (!field)
        return;
    const path = `${rows.pointer(record)}/${field.name}`;
    /** @type {Record<string, string>} */
    const empty = {varint: '0', fixed32: '"0.0.0.0"', bytes: '""', text: '""', record: '{}', 'array of records': '{}',
        'array of texts': '""'};
    let isThere = false;
    for (let i = record + 1; i < rows.count && !isThere; ++i)
        isThere = rows.parents[i] === record && rows.kind(i) <= ROW.record && rows.number(i) === field.number;
    if (!field.kind.startsWith('array'))
        return isThere ? say('edit-refusal', `${field.name} is there already; change its value`)
            : edit(path, empty[field.kind]);
    return edit(isThere ? `${path}/-` : path, isThere ? empty[field.kind] : `[${empty[field.kind]}]`);
}

// ---- copies ------------------------------------------------------------------------------------------------------

async function copy() {
    const form = part('copy-form').value;
    if (state.bytes.length > LONGEST_COPY_BYTES)
        return say('edit-refusal', 'The message is too long for the clipboard; copy it with mava-tum.');
    const pairs = Array.from(state.bytes, hexOf);
    let text = pairs.join(' ');
    if (form === 'c')
        text = `static const uint8_t ${state.name}[] = {${pairs.map((pair) => `0x${pair}`).join(', ')}};\n`;
    const shown = {name: state.name, input: 'shown', format: 'raw'};
    if (form === 'json')
        text = (await inspector.run({command: 'decode', json: true, ...shown})).text;
    else if (form === 'report' || form === 'redacted')
        text = (await inspector.run({command: 'report', redacted: form === 'redacted', ...shown})).text;
    part('copied-part').hidden = false;
    part('copied').value = text;
    try {
        await navigator.clipboard.writeText(text);
    } catch {
        part('copied').select(); // no permission: it is there to be taken
    }
}

// ---- comparison --------------------------------------------------------------------------------------------------

/** @param {Uint8Array | Blob} content */
async function compareWith(content) {
    inspector.keep('the other input', content);
    const read = await inspector.run({command: 'message', name: state.name, input: 'the other input', number: 1});
    if (read.status === 2)
        return say('differences-sum', read.errors);
    inspector.keep('the other message', read.bytes);
    const [answer, rows] = await Promise.all([
        inspector.run({command: 'diff', name: state.name, input: 'shown', second: 'the other message', format: 'raw',
            json: true}),
        inspector.run({command: 'rows', name: state.name, input: 'the other message'})]);
    part('other-view').hidden = false;
    otherView.set(read.bytes, new Rows(rows.bytes, catalogue));
    const found = answer.text === '' ? {differences: []} : JSON.parse(answer.text);
    const differences = found.differences ?? [];
    view.different = new Set(differences.map((/** @type {any} */ one) => one.path));
    otherView.different = view.different;
    const same = found.same_bytes ? 'the same bytes' : 'the same fields, in other bytes';
    const sum = differences.length > 0 ? counted(differences.length, 'difference') : same;
    say('differences-sum', found.fault ?? (answer.errors || sum));
    part('differences').replaceChildren(...differences.slice(0, 200).map((/** @type {any} */ one) =>
        element('li', {}, inert(`${one.path}: ${one.a ?? 'absent'} \u2192 ${one.b ?? 'absent'}`))));
    view.draw();
    otherView.draw();
}
