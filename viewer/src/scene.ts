// What the 3D view draws, and how: solids, edges, idealisation, section and selection.

import * as THREE from 'three';
import { coloursOf, plainColour, viewColours, type Rgb } from './colours';
import { makeSolid, makeSolids } from './geometry';
import { makeIdealised, type IdealisedGeometry } from './idealised';
import { SegmentList, makeLineGeometry } from './lines';
import type { Model } from './model';
import { cutSegments, planeOf, type Plane } from './section';
import * as shaders from './shaders';
import type { Display, Store } from './state';

/** An object that takes part in some displays only. */
interface Layer {
  object: THREE.Object3D;
  isShown: () => boolean;
}

const kBody = 2;
const kNoClip = new THREE.Vector4(0, 0, 0, 1);

function colourOf(rgb: Rgb): THREE.Color {
  const [red, green, blue] = rgb.map((channel) => channel / 255);
  return new THREE.Color().setRGB(red, green, blue, THREE.LinearSRGBColorSpace);
}

/** Removes the objects of a group and frees their buffers. */
function dispose(group: THREE.Group): void {
  for (const child of group.children as THREE.Mesh[]) {
    child.geometry.dispose();
    (child.material as THREE.Material).dispose();
  }
  group.clear();
}

/** The middle one of the three extents of each element: about how wide it looks. */
function sizesOf(model: Model, height: number): THREE.DataTexture {
  const texels = new Float32Array(shaders.kStatesWidth * height);
  for (let i = 0; i < model.count; ++i) {
    const box = model.boxes.subarray(6 * i, 6 * i + 6);
    texels[i] = [box[3] - box[0], box[4] - box[1], box[5] - box[2]].sort((a, b) => a - b)[1];
  }
  const texture = new THREE.DataTexture(
    texels, shaders.kStatesWidth, height, THREE.RedFormat, THREE.FloatType);
  texture.needsUpdate = true;
  return texture;
}

export class BuildingScene {
  private readonly scene = new THREE.Scene();
  private readonly capScene = new THREE.Scene();
  private readonly layers: Layer[] = [];
  private readonly states: THREE.DataTexture;
  private readonly uniforms: Record<string, THREE.IUniform>;
  private readonly solidMaterials: THREE.ShaderMaterial[] = [];
  private readonly selection = new THREE.Group();
  private readonly cutLines = new THREE.Group();
  private readonly cap: THREE.Mesh;
  private idealised: IdealisedGeometry | null = null;
  private hovered = -1;
  private plane: Plane | null = null;

  constructor(private readonly model: Model, private readonly store: Store) {
    const height = Math.max(1, Math.ceil(model.count / shaders.kStatesWidth));
    const texels = new Uint8Array(4 * shaders.kStatesWidth * height);
    this.states = new THREE.DataTexture(texels, shaders.kStatesWidth, height);
    this.uniforms = this.makeUniforms(sizesOf(model, height));
    this.makeSolidLayers();
    this.cap = this.makeCap();
    this.scene.add(this.cutLines, this.selection);
    this.applyTheme();
    this.updateStates();
  }

  /** The plane of the section, relative to the origin; null if there is none. */
  get sectionPlane(): Plane | null {
    return this.plane;
  }

  /** Reads the colours of the theme from the style sheet. */
  applyTheme(): void {
    const colours = viewColours();
    const set = (name: string, rgb: Rgb) => (this.uniforms[name].value = colourOf(rgb));
    set('background', colours.background);
    set('edgeColour', colours.edge);
    set('cutColour', colours.cut);
    set('cutEdge', colours.cutEdge);
    set('selectedColour', colours.selected);
    set('selectedEdge', colours.selectedEdge);
    set('nodeColour', colours.node);
    this.uniforms.darkening.value = colours.isDark ? 1 : 0.68;
  }

  /** Writes colours and flags of all elements. */
  updateStates(): void {
    const { colourBy, selected } = this.store.state;
    const facet = colourBy === 'none' ? null : this.model.facet(colourBy);
    const colours = facet ? coloursOf(facet) : [];
    const texels = this.states.image.data as Uint8Array;
    const { approximate, kind, volumeRatio } = this.model.elements;
    for (let i = 0; i < this.model.count; ++i) {
      const rgb = facet ? colours[facet.values[i]] : plainColour;
      texels[4 * i] = rgb[0];
      texels[4 * i + 1] = rgb[1];
      texels[4 * i + 2] = rgb[2];
      texels[4 * i + 3] = (this.store.visible[i] ? shaders.kVisible : 0)
        | (approximate[i] ? shaders.kApproximate : 0)
        | (kind[i] === kBody && volumeRatio[i] === null ? shaders.kOpen : 0)
        | (i === selected ? shaders.kSelected : 0)
        | (i === this.hovered ? shaders.kHovered : 0);
    }
    this.states.needsUpdate = true;
  }

  setHovered(element: number): void {
    const texels = this.states.image.data as Uint8Array;
    if (this.hovered >= 0) texels[4 * this.hovered + 3] &= ~shaders.kHovered;
    if (element >= 0) texels[4 * element + 3] |= shaders.kHovered;
    this.hovered = element;
    this.states.needsUpdate = true;
  }

  /** Shows the layers of the display. */
  updateDisplay(): void {
    if (this.display !== 'solids' && !this.idealised) this.makeIdealisedLayers();
    for (const layer of this.layers) layer.object.visible = layer.isShown();
    const isGhost = this.display === 'both';
    for (const material of this.solidMaterials) {
      material.transparent = isGhost;
      material.depthWrite = !isGhost;
    }
    this.uniforms.opacity.value = isGhost ? 0.28 : 1;
    this.uniforms.edgeOpacity.value = isGhost ? 0.3 : 0.8;
  }

  /** Places the section and its outlines. */
  updateSection(): void {
    this.plane = planeOf(this.store.state.section, this.model);
    dispose(this.cutLines);
    this.uniforms.clip.value = this.plane
      ? new THREE.Vector4(...this.plane.normal, this.plane.distance) : kNoClip;
    if (!this.plane) return;
    const box = this.model.boxOf(() => true);
    this.cap.geometry.dispose();
    this.cap.geometry = this.plane.quad(box);
    if (this.display === 'axes') return;
    const segments = cutSegments(this.model, this.store.visible, this.plane);
    this.cutLines.add(this.makeLines(makeLineGeometry(segments), {
      width: 2, colour: 'cutEdge', depthShift: 4e-4,
    }));
  }

  /** Outlines the selected element. */
  updateSelection(): void {
    dispose(this.selection);
    const element = this.store.state.selected;
    if (element < 0 || !this.store.visible[element]) return;
    const list = new SegmentList();
    const mesh = this.model.meshOf(element);
    if (mesh && this.display !== 'axes') {
      for (let e = mesh.firstEdge; e < mesh.firstEdge + mesh.edges; ++e) {
        const [a, b] = [this.model.data.edges[2 * e], this.model.data.edges[2 * e + 1]];
        list.add(element, this.model.vertex(element, mesh.firstVertex + a),
          this.model.vertex(element, mesh.firstVertex + b));
      }
    }
    for (const loop of this.display === 'solids' ? [] : this.model.loopsOf(element)) {
      for (let i = 0; i + (loop.isClosed ? 0 : 1) < loop.count; ++i) {
        list.add(element, this.model.loopPoint(loop.first + i),
          this.model.loopPoint(loop.first + ((i + 1) % loop.count)));
      }
    }
    const isApproximate = this.model.elements.approximate[element] === 1;
    this.selection.add(this.makeLines(makeLineGeometry(list.segments), {
      width: 3, colour: 'selectedEdge', depthShift: 0, isOnTop: true, dash: isApproximate ? 12 : 0,
    }));
    if (mesh && this.display !== 'axes') this.selection.add(this.makeGhost(element));
  }

  render(renderer: THREE.WebGLRenderer, camera: THREE.Camera): void {
    const size = renderer.getDrawingBufferSize(new THREE.Vector2());
    this.uniforms.viewport.value.copy(size);
    this.uniforms.pixelRatio.value = renderer.getPixelRatio();
    this.uniforms.size.value = 7 * renderer.getPixelRatio();
    camera.getWorldDirection(this.uniforms.viewDirection.value);
    renderer.setClearColor(this.clearColour(), 1);
    renderer.clear();
    const hasCap = this.plane !== null && this.display === 'solids';
    if (hasCap) renderer.render(this.capScene, camera);
    this.cap.visible = hasCap;
    renderer.render(this.scene, camera);
  }

  private get display(): Display {
    return this.store.state.display;
  }

  private clearColour(): THREE.Color {
    // The renderer writes the clear colour with its colour management: the value is linear.
    const colour = this.uniforms.background.value as THREE.Color;
    return colour.clone().convertSRGBToLinear();
  }

  private makeUniforms(sizes: THREE.DataTexture): Record<string, THREE.IUniform> {
    const names = ['background', 'edgeColour', 'cutColour', 'cutEdge', 'selectedColour',
      'selectedEdge', 'nodeColour'];
    const colours = names.map((name) => [name, { value: new THREE.Color() }] as const);
    return {
      ...Object.fromEntries(colours),
      states: { value: this.states },
      sizes: { value: sizes },
      clip: { value: kNoClip },
      opacity: { value: 1 },
      edgeOpacity: { value: 0.8 },
      pixelRatio: { value: 1 },
      viewport: { value: new THREE.Vector2(1, 1) },
      viewDirection: { value: new THREE.Vector3() },
      darkening: { value: 1 },
      size: { value: 7 },
    };
  }

  private material(
    vertexShader: string, fragmentShader: string, options: THREE.ShaderMaterialParameters = {},
    uniforms: Record<string, THREE.IUniform> = {},
  ): THREE.ShaderMaterial {
    return new THREE.ShaderMaterial({
      glslVersion: THREE.GLSL3, vertexShader, fragmentShader, side: THREE.DoubleSide,
      uniforms: { ...this.uniforms, depthShift: { value: 0 }, ...uniforms }, ...options,
    });
  }

  private add(object: THREE.Object3D, order: number, isShown: () => boolean): void {
    object.frustumCulled = false;
    object.renderOrder = order;
    this.scene.add(object);
    this.layers.push({ object, isShown });
  }

  private makeSolidLayers(): void {
    const offset = { polygonOffset: true, polygonOffsetFactor: 0.75, polygonOffsetUnits: 2 };
    const count = { colorWrite: false, depthWrite: false, depthTest: false, stencilWrite: true };
    const stencil = (side: THREE.Side, op: THREE.StencilOp) => ({
      ...count, side, stencilZPass: op, stencilZFail: op, stencilFail: op,
    });
    for (const group of makeSolids(this.model)) {
      const defines = group.isInstanced ? { INSTANCED: '' } : {};
      const faces = this.material(shaders.solidVertex, shaders.solidFragment,
        { defines, ...offset });
      this.solidMaterials.push(faces);
      this.add(new THREE.Mesh(group.faces, faces), 1, () => this.display !== 'axes');
      this.addEdges(group.edges, defines);
      if (group.roundEdges) this.addEdges(group.roundEdges, { ...defines, ROUND: '' });
      for (const options of [
        stencil(THREE.BackSide, THREE.IncrementWrapStencilOp),
        stencil(THREE.FrontSide, THREE.DecrementWrapStencilOp),
      ]) {
        const counter = new THREE.Mesh(group.faces,
          this.material(shaders.solidVertex, shaders.emptyFragment,
            { defines: { ...defines, CLOSED_ONLY: '' }, ...options }));
        counter.frustumCulled = false;
        this.capScene.add(counter);
      }
    }
  }

  private addEdges(geometry: THREE.BufferGeometry, defines: Record<string, string>): void {
    const edges = this.material(shaders.solidVertex, shaders.edgeFragment,
      { defines, transparent: true },
      { depthShift: { value: 1e-5 }, opacity: this.uniforms.edgeOpacity });
    this.add(new THREE.LineSegments(geometry, edges), 2, () => this.display !== 'axes');
  }

  private makeCap(): THREE.Mesh {
    const cap = new THREE.Mesh(new THREE.BufferGeometry(),
      this.material(shaders.capVertex, shaders.capFragment, {
        stencilWrite: true, stencilRef: 0, stencilFunc: THREE.NotEqualStencilFunc,
        polygonOffset: true, polygonOffsetFactor: 1, polygonOffsetUnits: 1,
      }));
    cap.frustumCulled = false;
    cap.renderOrder = 3;
    cap.visible = false;
    this.scene.add(cap);
    return cap;
  }

  private makeLines(geometry: THREE.InstancedBufferGeometry, options: {
    width: number; colour?: string; depthShift: number; isOnTop?: boolean; dash?: number;
    usesClip?: boolean;
  }): THREE.Mesh {
    const ratio = this.uniforms.pixelRatio.value as number;
    const material = this.material(shaders.lineVertex, shaders.lineFragment,
      { transparent: true, depthTest: !options.isOnTop, depthWrite: !options.isOnTop },
      {
        width: { value: options.width * ratio },
        dash: { value: (options.dash ?? 0) * ratio },
        depthShift: { value: options.depthShift },
        usesStates: { value: options.colour ? 0 : 1 },
        usesClip: { value: options.usesClip ? 1 : 0 },
        lineColour: this.uniforms[options.colour ?? 'edgeColour'],
      });
    const lines = new THREE.Mesh(geometry, material);
    lines.frustumCulled = false;
    lines.renderOrder = options.isOnTop ? 9 : 5;
    return lines;
  }

  /** The faces of an element as a veil that shows through what hides them. */
  private makeGhost(element: number): THREE.Mesh {
    const ghost = new THREE.Mesh(makeSolid(this.model, element),
      this.material(shaders.solidVertex, shaders.solidFragment,
        { transparent: true, depthTest: false, depthWrite: false, side: THREE.FrontSide },
        { opacity: { value: 0.3 } }));
    ghost.frustumCulled = false;
    ghost.renderOrder = 8;
    return ghost;
  }

  private makeIdealisedLayers(): void {
    this.idealised = makeIdealised(this.model);
    const isShown = () => this.display !== 'solids';
    const planes = this.material(shaders.solidVertex, shaders.solidFragment,
      { transparent: true, depthWrite: false }, { opacity: { value: 0.4 } });
    this.add(new THREE.Mesh(this.idealised.planes, planes), 4, isShown);
    const { axes, outlines } = this.idealised;
    const addLines = (geometry: THREE.InstancedBufferGeometry, width: number, depthShift: number) =>
      this.add(this.makeLines(geometry, { width, depthShift, usesClip: true }), 5, isShown);
    addLines(outlines, 1.3, 1e-4);
    addLines(axes, 2.8, 1.5e-4);
    const nodes = this.material(shaders.nodeVertex, shaders.nodeFragment);
    this.add(new THREE.Points(this.idealised.nodes, nodes), 6, isShown);
  }
}
