// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The compiled library's interface for the page's scripts; bindings/ defines it.

export type Rect = Record<'x' | 'y' | 'width' | 'height', number>;

type Color = Record<'r' | 'g' | 'b' | 'a', number>;

/** The operations that the page calls directly. The forms call all operations by name. */
export interface Surface {
    ZoCreateGLWindowSurface(hasWindow: boolean): number;
    ZoDestoryGLWindowSurface(): void;
    ZoCreateGLFBO(width: number, height: number, format: number): { code: number; handle: number };
    ZoDestoryGLFBO(handle: number): number;
    ZoDrawRect(fbo: number, rect: Rect, color: Color): number;
    ZoLoadFont(path: string, size: number): number;
    ZoGetTextSize(text: string, length: number): { code: number; width: number; height: number };
}

export type ScenePictures = Record<'background' | 'glass' | 'logo' | 'volume', ImageData>;

export interface DemoScene {
    CreateBuffers(): void;
    LoadFont(path: string): void;
    Paint(): void;
    Scroll(): void;
    DrawFrame(minutes: number): void;
    IsGood(): boolean;
    delete(): void;
}

export interface FontReport {
    name: string;
    mapped: number;
    blank: number;
    atlasWidth: number;
    atlasHeight: number;
    leftOut: number[];
}

export interface Library {
    canvas: HTMLCanvasElement;
    FS: {
        mkdirTree(path: string): void;
        writeFile(path: string, data: Uint8Array): void;
    };
    ZoGLDrawSurface: new () => Surface;
    DemoScene: new (surface: Surface, pictures: ScenePictures) => DemoScene;
    DescribeFont(path: string, size: number): FontReport;
    Shows(filter: string, priority: number, tag: string): boolean;
}

export default function createLibrary(options: {
    canvas: HTMLCanvasElement;
    printErr: (line: string) => void;
}): Promise<Library>;
