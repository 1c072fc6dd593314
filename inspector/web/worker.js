// Runs the module: in a worker of the page, and in Node for its tests. The module keeps nothing from request to
// request; what it reads are the files that were kept here before.
'use strict';

/** @typedef {{status: number, text: string, errors: string, bytes: Uint8Array, crashed: boolean}} Answer */
/** @typedef {Uint8Array | Blob} Content */

const LARGE_MEMORY_BYTES = 64 << 20;
const PROGRESS_EVERY_MS = 100;
const CHANNELS = {output: 0, errors: 1, bytes: 2};

class InspectorModule {
    /**
     * @param {WebAssembly.Module} compiled
     * @param {(done: number, all: number) => void} onProgress
     */
    constructor(compiled, onProgress) {
        this.compiled = compiled;
        this.onProgress = onProgress;
        /** @type {Map<string, Content>} */
        this.files = new Map();
        /** @type {Uint8Array[][]} */
        this.written = [];
        /** @type {Content[]} */
        this.opened = [];
        this.nextProgress = 0;
        this.start();
    }

    start() {
        const refused = () => 52; // "function not supported": the module has no files, clocks or environment
        /** @type {WebAssembly.Imports} */
        const imports = {host: this.host()};
        for (const wanted of WebAssembly.Module.imports(this.compiled))
            if (wanted.module !== 'host')
                (imports[wanted.module] ??= {})[wanted.name] = refused;
        /** @type {any} */
        this.exports = new WebAssembly.Instance(this.compiled, imports).exports;
        this.exports._initialize();
    }

    host() {
        return {
            open: (/** @type {number} */ name, /** @type {number} */ size) => {
                const content = this.files.get(new TextDecoder().decode(this.memory(name, size)));
                return content === undefined ? -1 : this.opened.push(content) - 1;
            },
            read: (/** @type {number} */ file, /** @type {number} */ offset, /** @type {number} */ to,
                   /** @type {number} */ capacity) => {
                const part = this.partOf(this.opened[file], offset, capacity);
                this.memory(to, part.length).set(part);
                return part.length;
            },
            write: (/** @type {number} */ channel, /** @type {number} */ from, /** @type {number} */ size) => {
                this.written[channel].push(this.memory(from, size).slice());
            },
        };
    }

    /** @param {number} offset @param {number} size */
    memory(offset, size) {
        return new Uint8Array(this.exports.memory.buffer, offset >>> 0, size >>> 0);
    }

    /** @param {Content} content @param {number} offset @param {number} capacity */
    partOf(content, offset, capacity) {
        if (content instanceof Uint8Array)
            return content.subarray(offset, offset + capacity);
        if (Date.now() >= this.nextProgress) {
            this.nextProgress = Date.now() + PROGRESS_EVERY_MS;
            this.onProgress(offset, content.size);
        }
        // @ts-ignore: only workers have it
        return new Uint8Array(new FileReaderSync().readAsArrayBuffer(content.slice(offset, offset + capacity)));
    }

    /**
     * Never throws: a module that crashed is replaced by a new one.
     * @param {string} request JSON
     * @returns {Answer}
     */
    run(request) {
        this.written = [[], [], []];
        this.opened = [];
        this.nextProgress = Date.now() + PROGRESS_EVERY_MS;
        let status = 2;
        let crashed = '';
        try {
            const text = new TextEncoder().encode(request);
            const block = this.exports.block(text.length);
            if (block === 0)
                throw new RangeError('out of memory');
            this.memory(block, text.length).set(text);
            status = this.exports.run(block, text.length);
        } catch (error) {
            crashed = `the inspector ran out of memory or failed on this input (${error}); it was started again`;
        }
        if (crashed !== '' || this.exports.memory.buffer.byteLength > LARGE_MEMORY_BYTES)
            this.start();
        return {
            status, crashed: crashed !== '', text: this.textOf(CHANNELS.output),
            errors: crashed || this.linesOf(CHANNELS.errors), bytes: this.bytesOf(CHANNELS.bytes),
        };
    }

    /** @param {number} channel */
    bytesOf(channel) {
        const parts = this.written[channel];
        const whole = new Uint8Array(parts.reduce((sum, part) => sum + part.length, 0));
        let at = 0;
        for (const part of parts) {
            whole.set(part, at);
            at += part.length;
        }
        return whole;
    }

    /**
     * Each write is a line.
     * @param {number} channel
     */
    linesOf(channel) {
        return this.written[channel].map((line) => new TextDecoder().decode(line)).join('\n');
    }

    /** @param {number} channel */
    textOf(channel) {
        return new TextDecoder().decode(this.bytesOf(channel));
    }
}

/** @param {any} scope of the worker */
function serve(scope) {
    /** @type {InspectorModule} */
    let inspector;
    scope.onmessage = (/** @type {MessageEvent} */ event) => {
        const {id, module, keep, request} = event.data;
        if (module)
            inspector = new InspectorModule(module, (done, all) => scope.postMessage({id: 0, done, all}));
        if (keep)
            inspector.files.set(keep.name, keep.content);
        if (request) {
            const answer = inspector.run(request);
            scope.postMessage({id, answer}, [answer.bytes.buffer]);
        }
    };
}

if (typeof module !== 'undefined')
    module.exports = {InspectorModule};
else
    serve(globalThis);
