// What the compiled library looks like to the page's scripts: see bindings/.

export interface Rect {
    x: number;
    y: number;
    width: number;
    height: number;
}

export interface Color {
    r: number;
    g: number;
    b: number;
    a: number;
}

export interface TextFields {
    text: string;
    length: number;
    color: Color;
    fontSize: number;
    bold: boolean;
    italic: boolean;
}

export interface BitmapFields {
    data: Uint8Array;
    format: number;
    width: number;
    height: number;
    rect: Rect;
}

export interface BlitFields {
    srcHandle: number;
    dstHandle: number;
    srcRect: Rect;
    dstRect: Rect;
}

export interface Surface {
    ZoCreateGLWindowSurface(hasWindow: boolean): number;
    ZoDestoryGLWindowSurface(): void;
    Init(flags: number): number;
    ZoRefreshOnSrceen(): number;
    ZoGetWindowWidth(): number;
    ZoGetWindowHeight(): number;
    ZoCreateGLFBO(width: number, height: number, format: number): { code: number; handle: number };
    ZoDestoryGLFBO(handle: number): number;
    ZoDrawRect(fbo: number, rect: Rect, color: Color): number;
    ZoBlit(info: BlitFields): number;
    ZoDisplayFBO(fbo: number, src: Rect, dst: Rect): number;
    ZoDisplayBitmap(info: BitmapFields): number;
    ZoLoadFont(path: string, size: number): number;
    ZoGetTextSize(info: TextFields): { code: number; width: number; height: number };
    ZoDrawText(handle: number, info: TextFields, rect: Rect): number;
}

export interface ScenePictures {
    background: ImageData;
    glass: ImageData;
    logo: ImageData;
    volume: ImageData;
}

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
    family: string;
    style: string;
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
    stderr: (byte: number) => void;
}): Promise<Library>;
