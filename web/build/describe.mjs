// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Prints a script with the page's texts about result codes and operations, taken from the library's header
// and guide:
//   node describe.mjs ZoGLDrawSurface.h when-something-fails.md >library.js
import { readFileSync } from 'node:fs';

const [header, guide] = process.argv.slice(2).map((path) => readFileSync(path, 'utf8'));

/**
 * The text of a comment, without markers and line breaks within a paragraph.
 *
 * @param {string} comment
 */
function toProse(comment) {
    return comment
        .replace(/^\s*\/\/\/<? ?/gm, '')
        .replace(/\s*\n(?!\n)/g, ' ')
        .replace(/`/g, '')
        .trim();
}

function describeResults() {
    /** @type {Record<string, { name: string, meaning: string, advice: string }>} */
    const results = {};
    for (const [, name, code, meaning] of header.matchAll(
        /^ +(ZO_\w+) = (\d+), +\/\/\/< (.*)$/gm,
    )) {
        results[code] = { name, meaning: toProse(meaning), advice: '' };
    }
    for (const [, code, , advice] of guide.matchAll(
        /^\| (\d+) \| `ZO_\w+` \| (.*) \| (.*) \|$/gm,
    )) {
        results[code].advice = toProse(advice).replace(/\[([^\]]*)\]\([^)]*\)/g, '$1');
    }
    return results;
}

/** The first paragraph of each operation's docblock. */
function describeOperations() {
    /** @type {Record<string, string>} */
    const operations = {};
    const declaration = /((?:^ +\/\/\/.*\n)+) +(?:unsigned )?(?:int|void) (Zo\w+|Init)\(/gm;
    for (const [, comment, name] of header.matchAll(declaration)) {
        const [first] = comment.split(/^ +\/\/\/ ?(?:$|@)/m);
        operations[name] = toProse(first);
    }
    return operations;
}

const version = [...header.matchAll(/#define ZOGLES_VERSION_\w+ (\d+)/g)].map(([, part]) => part);

console.log(`// Made from the library's header and guide.
export const version = '${version.join('.')}';
export const results = ${JSON.stringify(describeResults(), null, 2)};
export const operationNotes = ${JSON.stringify(describeOperations(), null, 2)};`);
