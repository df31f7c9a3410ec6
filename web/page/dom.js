// Making elements.

/**
 * @template {keyof HTMLElementTagNameMap} Name
 * @param {Name} name
 * @param {Record<string, any>} [properties] of the element; what has a dash becomes an attribute
 * @param {...(Node | string)} children
 * @returns {HTMLElementTagNameMap[Name]}
 */
export function make(name, properties = {}, ...children) {
    const element = document.createElement(name);
    for (const [key, value] of Object.entries(properties)) {
        if (key.includes('-') || key === 'role' || key === 'for' || key === 'class') {
            element.setAttribute(key, value);
        } else {
            Object.assign(element, { [key]: value });
        }
    }
    element.append(...children);
    return element;
}

/**
 * The page's element of that id.
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
 * Tells the visitor something of the page as a whole; an empty text ends it.
 *
 * @param {string} text
 */
export function notice(text) {
    find('notice', HTMLElement).textContent = text;
}

/**
 * Work that many events ask for, done at most once in a frame.
 *
 * @param {() => void} work
 * @returns {() => void} asks for it
 */
export function oncePerFrame(work) {
    let isAsked = false;
    return () => {
        if (!isAsked) {
            isAsked = true;
            requestAnimationFrame(() => {
                isAsked = false;
                work();
            });
        }
    };
}

/**
 * Work that many events ask for, done at most once in a while, and always once more after the last of them.
 *
 * @param {() => void} work
 * @param {number} pause milliseconds
 * @returns {() => void} asks for it
 */
export function throttle(work, pause) {
    let timer = 0;
    return () => {
        timer ||= window.setTimeout(() => {
            timer = 0;
            work();
        }, pause);
    };
}
