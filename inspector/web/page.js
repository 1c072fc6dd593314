// The page: takes an input apart in the worker, shows what comes back, and sends edits the same way. All that is known
// about messages comes from the module.
'use strict';

/** @typedef {import('./worker.js').Answer} Answer */

const EXAMPLE = {name: 'session_context',
    hex: '08 02 18 07 52 10 10 2a 2a 05 61 6c 69 63 65 52 05 08 64 10 90 4e'};
const FRAME_NUMBERS = 5; // doubles of each message in a list, see module.cpp
/** @type {Record<number, string>} */
const NO_FIELDS = {[ROW.fault]: 'Decoding ends here', [ROW.unread]: 'Not read', [ROW.absent]: 'Absent fields'};
/** What the program says to people who type a command line, and what it is here. */
const OF_COMMAND_LINE = [['say which with --format', 'choose its form'], ['say -f raw', 'choose raw bytes'],
    ['say --format frames', 'choose length-prefixed messages'], ['name the format with --format', 'choose its form'],
    [' (JSON is read by mava-tum encode)', ''],
    ['--port, --side and --transport leave out', 'the choice below leaves out'],
    ['--port and --transport choose packets', 'ports choose packets'], ['; mava-tum list has all names', '']];

/** @param {string} id @returns {any} */
function part(id) {
    const found = document.getElementById(id);
    if (found === null)
        throw new Error(`the page has no ${id}`);
    return found;
}

// ---- the worker --------------------------------------------------------------------------------------------------

/** The worker with the module in it. One that was cancelled is replaced, and gets what it had to keep. */
class Inspector {
    /** @param {WebAssembly.Module} module */
    constructor(module) {
        this.module = module;
        this.nextId = 1;
        /** @type {Map<number, (answer: Answer) => void>} */
        this.waiting = new Map();
        /** @type {Map<string, Uint8Array | Blob>} */
        this.kept = new Map();
        this.url = URL.createObjectURL(new Blob([part('worker').textContent], {type: 'text/javascript'}));
        this.start();
    }

    start() {
        this.worker = new Worker(this.url);
        this.worker.onmessage = (event) => {
            const {id, done, all, answer} = event.data;
            if (id === 0)
                return showBusy(`${mebibytes(done)} of ${mebibytes(all)}`, done / all);
            const settle = this.waiting.get(id);
            this.waiting.delete(id);
            settle?.(answer);
        };
        this.worker.onerror = (event) => {
            event.preventDefault();
            this.restart('the inspector failed and was started again');
        };
        this.worker.postMessage({module: this.module});
        for (const [name, content] of this.kept)
            this.worker.postMessage({keep: {name, content}});
    }

    /** @param {string} reason what those are told that wait */
    restart(reason) {
        this.worker?.terminate();
        const waiting = [...this.waiting.values()];
        this.waiting.clear();
        this.start();
        for (const settle of waiting)
            settle({status: 2, text: '', errors: reason, bytes: new Uint8Array(0), crashed: true});
    }

    /** @param {string} name @param {Uint8Array | Blob} content */
    keep(name, content) {
        this.kept.set(name, content);
        this.worker?.postMessage({keep: {name, content}});
    }

    /** @param {string | object} request @returns {Promise<Answer>} */
    run(request) {
        const id = this.nextId++;
        return new Promise((settle) => {
            this.waiting.set(id, settle);
            this.worker?.postMessage({id, request: typeof request === 'string' ? request : JSON.stringify(request)});
        });
    }
}

/** @param {number} count @param {string} one */
function counted(count, one) {
    return `${count} ${one}${count === 1 ? '' : 's'}`;
}

/** @param {number} bytes */
function mebibytes(bytes) {
    return `${(bytes / 1048576).toFixed(1)} MiB`;
}

/** @param {string} base64 */
function bytesOfBase64(base64) {
    return Uint8Array.from(atob(base64), (character) => character.charCodeAt(0));
}

/** @param {string} text @param {number} [share] of the work that is done */
function showBusy(text, share) {
    part('busy').hidden = text === '';
    part('busy-text').textContent = text;
    if (share === undefined)
        part('progress').removeAttribute('value');
    else
        part('progress').value = share;
}

// ---- what the page holds -----------------------------------------------------------------------------------------

/** @type {Inspector} */
let inspector;
/** @type {Message[]} */
let catalogue = [];
/** @type {Record<string, {name: string, text: string}>} */
const rules = JSON.parse(part('rules').textContent);

const state = {
    name: '', // of the message
    source: '', // of the kept file that the input is
    format: 'auto',
    /** @type {Uint8Array} */ bytes: new Uint8Array(0),
    guessed: '', // the name, if it was not chosen
    isCapture: false,
    /** @type {object} */ packets: {}, // of a capture: the choice
    /** @type {string[]} */ directions: [], // of a capture
    /** @type {Float64Array} */ frames: new Float64Array(0),
    /** @type {number[]} */ framesShown: [],
    frame: 0,
    /** @type {{bytes: Uint8Array, name: string}[]} */ before: [],
    /** @type {{bytes: Uint8Array, name: string}[]} */ after: [],
    reading: 0, // of inputs: as `turn`
    turn: 0, // of showing: an answer that comes late is dropped
    half: -1, // the byte of which one hex digit was typed
    /** @type {any} */ look: null,
    other: false,
};

const view = new MessageView({
    bytes: part('bytes'), tree: part('tree'), id: 'a',
    selected: showSelected,
    typed: typeByte,
    key: treeKey,
    texts: (first, count) => textsOf('shown', first, count),
});
const otherView = new MessageView({
    bytes: part('other-bytes'), tree: part('other-tree'), id: 'b',
    selected: () => {},
    typed: () => {},
    key: () => false,
    texts: (first, count) => textsOf('the other message', first, count),
});

/** @param {string} input @param {number} first @param {number} count */
async function textsOf(input, first, count) {
    const answer = await inspector.run({command: 'texts', name: state.name, input, first, count});
    return answer.text === '' ? [] : JSON.parse(answer.text);
}

/**
 * A sentence with its rules as buttons.
 * @param {string} sentence
 * @returns {(Node | string)[]}
 */
function withRules(sentence) {
    return inert(sentence).split(/\b(L\d+)\b/).map((word) => {
        if (!(word in rules))
            return word;
        const button = element('button', {type: 'button', class: 'rule', title: rules[word].name}, word);
        button.addEventListener('click', () => {
            part('leniency-title').textContent = `${word}: ${rules[word].name}`;
            part('leniency-text').textContent = rules[word].text;
            part('leniency').showModal();
        });
        return button;
    });
}

/** @param {string} id @param {string} sentence */
function say(id, sentence) {
    part(id).replaceChildren(...withRules(sentence));
}

/**
 * Beside the input, a line each.
 * @param {string} sentences
 */
function sayRefusal(sentences) {
    const text = OF_COMMAND_LINE.reduce((all, [theirs, ours]) => all.replaceAll(theirs, ours), sentences);
    part('refusal').replaceChildren(...text.split('\n').flatMap((line) => ['\n', ...withRules(line)]).slice(1));
    part('refusal').hidden = text === '';
}

// ---- from an input to a message ----------------------------------------------------------------------------------

/** @param {string} name @param {Uint8Array | Blob} content */
function takeInput(name, content) {
    state.source = name;
    inspector.keep(name, content);
    return readInput();
}

function readPaste() {
    const text = part('input').value;
    if (text.trim() === '' && part('format').value === 'auto')
        return sayRefusal('There is nothing to inspect yet: paste a message, or open a file.');
    return takeInput('the input', new TextEncoder().encode(text));
}

/**
 * Of the input that is open.
 * @param {object} more
 * @returns {object}
 */
function requestOfInput(more) {
    return {name: state.name, input: state.source, format: state.format, ...state.packets, ...more};
}

function choosePackets() {
    const words = part('ports').value.split(/[\s,;]+/).filter((/** @type {string} */ word) => word !== '');
    const isPort = (/** @type {string} */ word) => /^\d+$/.test(word) && Number(word) >= 1 && Number(word) <= 65535;
    const wrong = words.find((/** @type {string} */ word) => !isPort(word));
    say('packets-refusal', wrong === undefined ? '' : `"${wrong}" is no port: ports are numbers from 1 to 65535.`);
    if (wrong !== undefined)
        return;
    state.packets = {ports: words.map(Number), side: part('side').value, transport: part('transport').value};
    return readInput();
}

async function readInput() {
    sayRefusal('');
    state.format = part('format').value;
    const name = part('message').value.trim();
    state.name = name === state.guessed ? '' : name;
    part('candidates').replaceChildren();
    const reading = ++state.reading;
    showBusy('reading');
    const answer = await inspector.run(requestOfInput({command: 'message', number: 1}));
    if (reading !== state.reading)
        return;
    showBusy('');
    if (answer.status === 2)
        return sayRefusal(answer.errors);
    const {several, capture, found} = JSON.parse(answer.text);
    state.isCapture = capture;
    part('packets').hidden = !capture;
    part('frames-part').hidden = !several;
    setFrames(new Float64Array(0), []);
    if (!found)
        return sayRefusal(answer.errors);
    state.before = [];
    state.after = [];
    state.frame = 1;
    view.row = -1;
    view.offset = 0;
    await show(answer.bytes);
    if (several)
        await listFrames();
}

async function listFrames() {
    const {reading} = state;
    showBusy('reading the messages', 0);
    const answer = await inspector.run(requestOfInput({command: 'frames', number: 0}));
    if (reading !== state.reading)
        return;
    showBusy('');
    sayRefusal(answer.errors);
    setFrames(new Float64Array(answer.bytes.buffer), answer.text === '' ? [] : JSON.parse(answer.text));
}

/** @param {Float64Array} frames @param {string[]} directions */
function setFrames(frames, directions) {
    state.frames = frames;
    state.directions = directions;
    filterFrames();
}

function filterFrames() {
    const onlyWrong = part('frames-wrong').checked;
    const all = state.frames.length / FRAME_NUMBERS;
    state.framesShown = [];
    let wrong = 0;
    for (let i = 0; i < all; ++i) {
        const isWrong = state.frames[i * FRAME_NUMBERS + 2] !== 0;
        wrong += isWrong ? 1 : 0;
        if (isWrong || !onlyWrong)
            state.framesShown.push(i);
    }
    part('frames-sum').textContent = `${all} as ${state.name}, ${wrong} malformed`;
    frameList.setCount(state.framesShown.length);
}

const frameList = new LineList(part('frames'), 26, (line) => {
    const i = state.framesShown[line];
    const [place, size, result, fault, direction] = state.frames.subarray(i * FRAME_NUMBERS, (i + 1) * FRAME_NUMBERS);
    const isShown = i + 1 === state.frame;
    const where = state.isCapture ? `packet ${place}, ${state.directions[direction]}` : `at byte ${place}`;
    const made = element('div', {role: 'option', class: `line${isShown ? ' selected' : ''}`, id: `frame-${i}`,
        'data-frame': `${i + 1}`, 'aria-selected': `${isShown}`}, `${i + 1}  ${where}, ${size} bytes  `,
        element('span', {class: result === 0 ? 'kind' : 'wrong'},
            result === 0 ? 'decodes' : `result ${result} at byte ${fault}`));
    if (isShown)
        part('frames').setAttribute('aria-activedescendant', made.id);
    return made;
});

/**
 * The bytes of a message of the list; of a capture, it is read again up to the message. Nothing: it was cancelled.
 * @param {number} number from 1
 * @returns {Promise<Uint8Array | undefined>}
 */
async function bytesOfFrame(number) {
    if (state.isCapture) {
        showBusy('reading');
        const answer = await inspector.run(requestOfInput({command: 'message', number}));
        showBusy('');
        if (answer.status === 2)
            sayRefusal(answer.errors);
        return answer.status === 2 ? undefined : answer.bytes;
    }
    const [offset, size] = state.frames.subarray((number - 1) * FRAME_NUMBERS);
    const kept = inspector.kept.get(state.source) ?? new Uint8Array(0);
    const bytes = kept.slice(offset + 4, offset + 4 + size);
    try {
        return bytes instanceof Blob ? new Uint8Array(await bytes.arrayBuffer()) : bytes;
    } catch {
        return void sayRefusal('The file cannot be read any more: it was moved, removed or changed. Open it again.');
    }
}

/** @param {number} number from 1 */
async function showFrame(number) {
    if (!(number >= 1 && number <= state.frames.length / FRAME_NUMBERS))
        return;
    const turn = ++state.turn;
    state.frame = number;
    frameList.draw();
    const bytes = await bytesOfFrame(number);
    if (turn !== state.turn || bytes === undefined)
        return;
    state.before = [];
    state.after = [];
    view.row = -1;
    await show(bytes);
}

/**
 * Shows a message as state.name; guesses the name if there is none.
 * @param {Uint8Array} bytes
 */
async function show(bytes) {
    const turn = ++state.turn;
    inspector.keep('shown', bytes);
    if (state.name === '' && !await guess())
        return;
    const [look, rows] = await Promise.all([
        inspector.run({command: 'look', name: state.name, input: 'shown'}),
        inspector.run({command: 'rows', name: state.name, input: 'shown'})]);
    if (turn !== state.turn)
        return;
    if (look.status === 2 || rows.status === 2)
        return sayRefusal(look.errors || rows.errors);
    state.bytes = bytes;
    state.look = JSON.parse(look.text);
    state.name = state.look.message;
    part('message').value = state.name;
    part('result-part').hidden = false;
    view.set(bytes, new Rows(rows.bytes, catalogue));
    showVerdict();
    showHistory();
    document.body.dataset.shown = `${turn}`;
    await showAdapters();
}

// ---- which message -----------------------------------------------------------------------------------------------

/** Chooses the likeliest message, and offers the others. */
async function guess() {
    const answer = await inspector.run({command: 'guess', input: 'shown', format: 'raw', json: true});
    const candidates = answer.text === '' ? [] : JSON.parse(answer.text).candidates;
    if (candidates.length === 0)
        return chooseFurthest();
    state.name = candidates[0].message;
    state.guessed = state.name;
    offer('It can be: ', candidates.map((/** @type {any} */ one) => ({
        name: one.message,
        words: one.unknown_bytes === 0 ? `${one.odd_forms} odd forms` : `${one.unknown_bytes} bytes unknown`})));
    return true;
}

/** None decodes: the message whose decoder reads most of it. */
async function chooseFurthest() {
    const looks = await Promise.all(catalogue.map((message) =>
        inspector.run({command: 'look', name: message.name, input: 'shown'})));
    const reached = looks.filter((answer) => answer.text !== '').map((answer) => JSON.parse(answer.text))
        .sort((one, other) => other.fault.offset - one.fault.offset);
    if (reached.length === 0) {
        sayRefusal(looks[0].errors);
        return false;
    }
    state.name = reached[0].message;
    state.guessed = state.name;
    offer('None of the messages decodes; read furthest: ', reached.slice(0, 8).map((look) => ({
        name: look.message,
        words: `result ${look.result} at byte ${look.fault.offset}`})));
    return true;
}

/** @param {string} words @param {{name: string, words: string}[]} candidates */
function offer(words, candidates) {
    part('candidates').replaceChildren(words, ...candidates.map((one) => {
        const button = element('button', {type: 'button'}, `${one.name} (${one.words})`);
        button.addEventListener('click', () => {
            state.name = one.name;
            state.guessed = '';
            show(state.bytes).then(() => part('frames-part').hidden || listFrames());
        });
        return button;
    }));
}

// ---- what is wrong, and what arrives ------------------------------------------------------------------------------

function showVerdict() {
    const {fault, message, bytes, result} = state.look;
    part('verdict').className = fault ? 'wrong' : '';
    if (!fault) {
        part('verdict').textContent = `${message}, ${bytes} bytes: decodes`;
        return part('explanation').replaceChildren();
    }
    part('verdict').textContent = `${message}, ${bytes} bytes: malformed at byte ${fault.offset}, result ${result}`;
    const show = element('button', {type: 'button'}, 'Show the byte');
    show.addEventListener('click', () => {
        view.select(view.rows.fault, fault.offset);
        part('bytes').focus();
    });
    part('explanation').replaceChildren(
        element('p', {class: 'wrong'}, inert(fault.rule)),
        element('p', {}, ...withRules(`Field: ${fault.path || 'none'}. `
            + 'The fields above this place in the tree were decoded; what follows was not read. '
            + 'An application receives the first part, and no error (L15, L16).')), show);
    if (view.row <= 0)
        view.select(view.rows.fault, fault.offset);
}

async function showAdapters() {
    const adapters = state.look.adapters;
    part('adapters').replaceChildren(...adapters.map((/** @type {any} */ adapter) => {
        const button = element('button', {type: 'button'}, adapter.name);
        button.addEventListener('click', () => showAdapter(adapter));
        return button;
    }));
    const {memory, segments, bytes} = state.look;
    const sent = segments === undefined ? ''
        : `${counted(segments, 'segment')} when its bytes fields are left in place; `;
    part('facts').textContent = `${bytes} bytes; ${sent}a decode asks for ${counted(memory.blocks, 'block')} `
        + `with ${counted(memory.bytes, 'byte')}.`;
    part('record-part').hidden = adapters.length === 0;
    part('findings').replaceChildren();
    part('findings-sum').textContent = adapters.length === 0 ? 'No adapter carries this message by itself.' : '';
    if (adapters.length > 0)
        await showAdapter(adapters[0]);
}

/** @param {{name: string, max_size: number}} adapter */
async function showAdapter(adapter) {
    const turn = state.turn;
    const answer = await inspector.run({command: 'adapter', name: adapter.name, input: 'shown'});
    if (turn !== state.turn || answer.text === '')
        return;
    const seen = JSON.parse(answer.text);
    part('findings-sum').textContent = `${adapter.name}: ${counted(seen.finding_count, 'finding')}; `
        + `the record has ${seen.record_bytes} bytes. `
        + `The largest message of this adapter has ${adapter.max_size} bytes.`;
    part('findings').replaceChildren(...seen.findings.slice(0, 100).map((/** @type {any} */ finding) =>
        element('li', {}, ...withRules(finding.text))));
    part('record').textContent = seen.record.split('\n').map(inert).join('\n');
}

// ---- the start ---------------------------------------------------------------------------------------------------

/** @param {string} name @param {string} text */
function showText(name, text) {
    part('message').value = name;
    part('input').value = text;
    part('format').value = 'auto';
    return readPaste();
}

/** @param {FileList | undefined | null} files @param {(content: File) => void} take */
function takeFile(files, take) {
    if (files && files.length > 0)
        take(files[0]);
}

function listen() {
    const openFile = (/** @type {File} */ file) => takeInput(file.name, file);
    part('inspect').addEventListener('click', readPaste);
    part('input').addEventListener('paste', () => setTimeout(readPaste));
    part('input').addEventListener('keydown', (/** @type {KeyboardEvent} */ event) => {
        if (event.key === 'Enter' && (event.ctrlKey || event.metaKey))
            readPaste();
    });
    part('packets').addEventListener('submit', (/** @type {Event} */ event) => {
        event.preventDefault();
        choosePackets();
    });
    part('message').addEventListener('change', () => {
        state.guessed = '';
        if (state.source !== '')
            readInput();
    });
    part('file').addEventListener('change', () => takeFile(part('file').files, openFile));
    part('other-file').addEventListener('change', () => takeFile(part('other-file').files, compareWith));
    document.addEventListener('dragover', (event) => {
        event.preventDefault();
        document.body.classList.add('dropping');
    });
    document.addEventListener('dragleave', () => document.body.classList.remove('dropping'));
    document.addEventListener('drop', (event) => {
        event.preventDefault();
        document.body.classList.remove('dropping');
        takeFile(event.dataTransfer?.files, openFile);
    });
    part('example').addEventListener('click', () => {
        part('try-part').hidden = false;
        showText(EXAMPLE.name, EXAMPLE.hex);
    });
    part('break').addEventListener('click', () => change(state.bytes.slice(0, -4)));
    part('cancel').addEventListener('click', () => {
        showBusy('');
        inspector.restart('cancelled');
    });
    part('undo').addEventListener('click', () => step(state.before, state.after));
    part('redo').addEventListener('click', () => step(state.after, state.before));
    document.addEventListener('keydown', (event) => {
        const isTyping = event.target instanceof HTMLInputElement || event.target instanceof HTMLTextAreaElement;
        if (!(event.ctrlKey || event.metaKey) || isTyping || !['z', 'y'].includes(event.key))
            return;
        event.preventDefault();
        part(event.key === 'z' ? 'undo' : 'redo').click();
    });
    part('editor').addEventListener('submit', (/** @type {Event} */ event) => {
        event.preventDefault();
        changeValue();
    });
    part('remove').addEventListener('click', removeField);
    part('add').addEventListener('click', addField);
    part('copy').addEventListener('click', copy);
    part('compare').addEventListener('click', () => {
        part('compare-part').hidden = !part('compare-part').hidden;
        part('compare').setAttribute('aria-expanded', `${!part('compare-part').hidden}`);
    });
    part('compare-now').addEventListener('click', () => compareWith(new TextEncoder().encode(part('other').value)));
    part('frames-wrong').addEventListener('change', filterFrames);
    part('frames-number').addEventListener('change', () => showFrame(Number(part('frames-number').value)));
    part('frames').addEventListener('click', (/** @type {Event} */ event) => showFrame(numberAt(event, 'frame')));
    part('frames').addEventListener('keydown', (/** @type {KeyboardEvent} */ event) => {
        const page = frameList.fitting() - 1;
        const by = {ArrowDown: 1, ArrowUp: -1, PageDown: page, PageUp: -page, Home: -Infinity,
            End: Infinity}[event.key];
        if (by === undefined || state.framesShown.length === 0)
            return;
        event.preventDefault();
        const last = state.framesShown.indexOf(state.frame - 1);
        const line = Math.max(0, Math.min(state.framesShown.length - 1, last + by));
        if (line === last)
            return;
        frameList.show(line);
        showFrame(state.framesShown[line] + 1);
    });
}

/** What the page was made with (mava-tum web), what its address says, or the example. */
function showFirst() {
    const given = JSON.parse(part('given').textContent);
    const asked = new URLSearchParams(location.hash.slice(1));
    if (given) {
        part('message').value = given.message;
        part('format').value = given.format;
        return takeInput(given.name, bytesOfBase64(given.bytes));
    }
    if (asked.has('hex'))
        return showText(asked.get('message') ?? '', asked.get('hex') ?? '');
    part('try-part').hidden = false;
    return showText(EXAMPLE.name, EXAMPLE.hex);
}

/**
 * What gzip made smaller.
 * @param {BlobPart} bytes
 */
function unpacked(bytes) {
    // @ts-ignore: newer than the types of this compiler
    const unpacking = new DecompressionStream('gzip');
    return new Response(new Blob([bytes]).stream().pipeThrough(unpacking)).arrayBuffer();
}

async function start() {
    listen();
    inspector = new Inspector(await WebAssembly.compile(await unpacked(bytesOfBase64(part('module').textContent))));
    catalogue = JSON.parse((await inspector.run({command: 'list', json: true})).text);
    part('messages').append(...catalogue.map((message) => element('option', {value: message.name})));
    await showFirst();
    document.body.dataset.ready = '1';
}

start().catch((error) => sayRefusal(`This browser cannot run the inspector: ${error}`));
