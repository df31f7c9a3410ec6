// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Elements, events, and deferred work.

/**
 * @template {keyof HTMLElementTagNameMap} Name
 * @param {Name} name
 * @param {Record<string, any>} [properties] properties of the element, or else attributes
 * @param {...(Node | string)} children
 * @returns {HTMLElementTagNameMap[Name]}
 */
export function make(name, properties = {}, ...children) {
    const element = document.createElement(name);
    for (const [key, value] of Object.entries(properties)) {
        if (key in element) {
            Object.assign(element, { [key]: value });
        } else {
            element.setAttribute(key, value);
        }
    }
    element.append(...children);
    return element;
}

/**
 * A row of a table.
 *
 * @param {(Node | string)[]} cells the first is a heading
 * @param {'td' | 'th'} [name] of the other cells
 */
export function makeRow(cells, name = 'td') {
    return make('tr', {}, ...cells.map((cell, i) => make(i === 0 ? 'th' : name, {}, cell)));
}

/**
 * The page's element with that id.
 *
 * @template {HTMLElement} Type
 * @param {string} id
 * @param {new () => Type} type
 * @returns {Type}
 */
export function find(id, type) {
    const element = document.getElementById(id);
    if (!(element instanceof type)) {
        throw new Error(`the page has no ${type.name} "${id}"`);
    }
    return element;
}

/**
 * Shows a message at the top of the page; an empty text removes it.
 *
 * @param {string} text
 */
export function notice(text) {
    find('notice', HTMLElement).textContent = text;
}

/**
 * Limits work that many events request: does it at most once per pause, and always after the last request.
 *
 * @param {() => void} work
 * @param {number} [pause] milliseconds
 * @returns {() => void} requests the work
 */
export function throttle(work, pause = 0) {
    let timer = 0;
    return () => {
        timer ||= window.setTimeout(() => {
            timer = 0;
            work();
        }, pause);
    };
}

/** Emits named events, each with at most one value. */
export class Emitter {
    /** @type {Record<string, ((value: any) => void)[]>} */
    #listeners = {};

    /**
     * @param {string} type
     * @param {(value: any) => void} listener
     */
    on(type, listener) {
        (this.#listeners[type] ??= []).push(listener);
    }

    /**
     * @param {string} type
     * @param {any} [value]
     */
    emit(type, value) {
        this.#listeners[type]?.forEach((listener) => listener(value));
    }
}
