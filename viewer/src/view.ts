// The 3D view: canvas, renderer, and drawing on demand.

import * as THREE from 'three';
import { ViewCamera } from './camera';
import { make } from './dom';
import { Picker } from './picking';
import { BuildingScene } from './scene';
import type { Box, Model } from './model';
import type { PageState, Store } from './state';
import { strings } from './strings';

/** What the last frames cost. */
export interface FrameStatistics {
  frames: number;
  drawCalls: number;
  triangles: number;
  /** Milliseconds of script in the last frame. */
  scriptMilliseconds: number;
}

export class View {
  readonly canvas: HTMLCanvasElement;
  readonly camera: ViewCamera;
  readonly picker: Picker;
  readonly scene: BuildingScene;
  readonly statistics: FrameStatistics = {
    frames: 0, drawCalls: 0, triangles: 0, scriptMilliseconds: 0,
  };
  private readonly renderer: THREE.WebGLRenderer;
  private readonly afterFrame: (() => void)[] = [];
  private readonly bounds: Box;
  private isPending = false;

  /** Throws if the browser has no WebGL. */
  constructor(
    private readonly root: HTMLElement, private readonly model: Model,
    private readonly store: Store,
  ) {
    this.canvas = make('canvas', {
      attributes: { tabindex: '0', role: 'application', 'aria-label': strings.canvasLabel },
    });
    this.renderer = new THREE.WebGLRenderer({
      canvas: this.canvas, antialias: true, stencil: true, powerPreference: 'high-performance',
    });
    this.renderer.autoClear = false;
    this.renderer.info.autoReset = false;
    this.bounds = model.boxOf(() => true);
    this.camera = new ViewCamera(this.bounds, () => this.request());
    this.scene = new BuildingScene(model, store);
    this.picker = new Picker(model, store, this.camera, () => this.scene.sectionPlane);
    root.append(this.canvas);
    this.resize();
    this.scene.updateDisplay();
    // A new size empties the canvas. It is drawn before the browser shows it.
    new ResizeObserver(() => {
      this.resize();
      this.draw();
    }).observe(root);
    store.listen((changed) => this.update(changed));
  }

  /** Calls a function after each frame. */
  onFrame(listener: () => void): void {
    this.afterFrame.push(listener);
  }

  /** Draws a frame soon. Nothing is drawn without a request. */
  request(): void {
    if (this.isPending) return;
    this.isPending = true;
    requestAnimationFrame(() => this.isPending && this.draw());
  }

  /** The box of the visible elements. */
  visibleBox(): Box {
    const box = this.model.boxOf((i) => this.store.visible[i] === 1);
    return box[0] > box[3] ? this.bounds : box;
  }

  applyTheme(): void {
    this.scene.applyTheme();
    this.scene.updateSection();
    this.scene.updateSelection();
    this.request();
  }

  setHovered(element: number): void {
    this.scene.setHovered(element);
    this.request();
  }

  private update(changed: ReadonlySet<keyof PageState>): void {
    const has = (...keys: (keyof PageState)[]) => keys.some((key) => changed.has(key));
    if (has('display')) this.scene.updateDisplay();
    if (has('hidden', 'colourBy', 'selected')) this.scene.updateStates();
    if (has('section', 'hidden', 'display')) this.scene.updateSection();
    if (has('selected', 'hidden', 'display')) this.scene.updateSelection();
    if (has('display', 'hidden', 'colourBy', 'selected', 'section')) this.request();
  }

  /** Takes over the size of the stage. */
  resize(): void {
    const width = this.root.clientWidth;
    const height = this.root.clientHeight;
    this.renderer.setPixelRatio(Math.min(devicePixelRatio, 2));
    this.renderer.setSize(width, height);
    this.camera.resize(width, height);
    this.request();
  }

  /** Draws a frame now. Its pixels can be read until the script ends. */
  draw(): void {
    this.isPending = false;
    const start = performance.now();
    this.renderer.info.reset();
    this.scene.render(this.renderer, this.camera.camera);
    for (const listener of this.afterFrame) listener();
    const { calls, triangles } = this.renderer.info.render;
    ++this.statistics.frames;
    this.statistics.drawCalls = calls;
    this.statistics.triangles = triangles;
    this.statistics.scriptMilliseconds = performance.now() - start;
  }
}
