// Mouse, touch and keyboard of the 3D view.

import type * as THREE from 'three';
import type { ViewCamera } from './camera';

/** What gestures and keys do besides moving the camera. Pixels are CSS pixels of the canvas. */
export interface Actions {
  pivot(x: number, y: number): THREE.Vector3 | undefined;
  click(x: number, y: number): void;
  doubleClick(x: number, y: number): void;
  hover(x: number, y: number): void;
  leave(): void;
  /** Returns false if the key has no meaning. */
  key(event: KeyboardEvent): boolean;
}

const kTurnPerPixel = 0.008;
const kKeyTurn = Math.PI / 24;
const kKeyPan = 40;
const kKeyZoom = 1.2;
const kClickPixels = 5;
const kDoubleClickMilliseconds = 350;

interface Pointer {
  x: number;
  y: number;
}

export class Controls {
  private readonly pointers = new Map<number, Pointer>();
  private start: Pointer | null = null;
  private hasMoved = false;
  private isPanning = false;
  private pivot: THREE.Vector3 | undefined;
  private lastClick = { time: -Infinity, x: 0, y: 0 };

  constructor(
    private readonly canvas: HTMLCanvasElement, private readonly camera: ViewCamera,
    private readonly actions: Actions,
  ) {
    canvas.addEventListener('pointerdown', (event) => this.down(event));
    canvas.addEventListener('pointermove', (event) => this.move(event));
    canvas.addEventListener('pointerup', (event) => this.up(event, true));
    canvas.addEventListener('pointercancel', (event) => this.up(event, false));
    canvas.addEventListener('pointerleave', () => this.actions.leave());
    canvas.addEventListener('contextmenu', (event) => event.preventDefault());
    canvas.addEventListener('wheel', (event) => this.wheel(event), { passive: false });
    canvas.addEventListener('keydown', (event) => this.key(event));
  }

  private place(event: MouseEvent): Pointer {
    const box = this.canvas.getBoundingClientRect();
    return { x: event.clientX - box.left, y: event.clientY - box.top };
  }

  private down(event: PointerEvent): void {
    this.canvas.focus({ preventScroll: true });
    this.canvas.setPointerCapture(event.pointerId);
    const at = this.place(event);
    this.pointers.set(event.pointerId, at);
    this.isPanning = event.button !== 0 || event.shiftKey;
    if (this.pointers.size > 1) {
      this.hasMoved = true;
      return;
    }
    this.start = at;
    this.hasMoved = false;
    this.pivot = this.isPanning ? undefined : this.actions.pivot(at.x, at.y);
  }

  private move(event: PointerEvent): void {
    const at = this.place(event);
    const before = this.pointers.get(event.pointerId);
    if (!before) {
      if (event.pointerType !== 'touch') this.actions.hover(at.x, at.y);
      return;
    }
    if (this.start && Math.hypot(at.x - this.start.x, at.y - this.start.y) > kClickPixels) {
      this.hasMoved = true;
    }
    if (!this.hasMoved) return;
    if (this.pointers.size === 2) this.pinch(event.pointerId, before, at);
    else if (this.isPanning) this.camera.pan(at.x - before.x, at.y - before.y);
    else {
      this.camera.turn((before.x - at.x) * kTurnPerPixel, (at.y - before.y) * kTurnPerPixel,
        this.pivot);
    }
    this.pointers.set(event.pointerId, at);
  }

  private pinch(id: number, before: Pointer, at: Pointer): void {
    const other = [...this.pointers].find(([key]) => key !== id)![1];
    const old = Math.hypot(before.x - other.x, before.y - other.y);
    const now = Math.hypot(at.x - other.x, at.y - other.y);
    this.camera.pan((at.x - before.x) / 2, (at.y - before.y) / 2);
    if (old > 10 && now > 10) {
      this.camera.zoom(old / now, (at.x + other.x) / 2, (at.y + other.y) / 2);
    }
  }

  private up(event: PointerEvent, isRelease: boolean): void {
    if (!this.pointers.delete(event.pointerId)) return;
    if (!isRelease || this.hasMoved || this.pointers.size || event.button !== 0) return;
    const at = this.place(event);
    const last = this.lastClick;
    const isDouble = event.timeStamp - last.time < kDoubleClickMilliseconds
      && Math.hypot(at.x - last.x, at.y - last.y) < 2 * kClickPixels;
    this.lastClick = { time: isDouble ? -Infinity : event.timeStamp, ...at };
    if (isDouble) this.actions.doubleClick(at.x, at.y);
    else this.actions.click(at.x, at.y);
  }

  private wheel(event: WheelEvent): void {
    event.preventDefault();
    const at = this.place(event);
    const lines = event.deltaMode === 1 ? event.deltaY * 16 : event.deltaY;
    this.camera.zoom(Math.exp(Math.max(-240, Math.min(240, lines)) * 0.0015), at.x, at.y);
  }

  private key(event: KeyboardEvent): void {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    if (this.moveByKey(event) || this.actions.key(event)) event.preventDefault();
  }

  private moveByKey(event: KeyboardEvent): boolean {
    const arrows: Record<string, [number, number]> = {
      ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, 1], ArrowDown: [0, -1],
    };
    const arrow = arrows[event.key];
    if (arrow && event.shiftKey) this.camera.pan(-arrow[0] * kKeyPan, arrow[1] * kKeyPan);
    else if (arrow) this.camera.turn(arrow[0] * kKeyTurn, arrow[1] * kKeyTurn);
    else if (event.key === '+' || event.key === '=') this.camera.zoom(1 / kKeyZoom);
    else if (event.key === '-') this.camera.zoom(kKeyZoom);
    else return false;
    return true;
  }
}
