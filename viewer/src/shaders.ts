// The shaders of the 3D view. Each element has one texel of state: its colour, and flags in alpha.

export const kVisible = 1;
export const kApproximate = 2;
export const kSelected = 4;
export const kHovered = 8;
/** The solid has gaps: it has no inside that a section could fill. */
export const kOpen = 16;

/** The width of the texture of states. */
export const kStatesWidth = 1024;

const kStateFunctions = `
uniform sampler2D states;
vec4 stateOf(float element) {
  int index = int(element + 0.5);
  return texelFetch(states, ivec2(index % ${kStatesWidth}, index / ${kStatesWidth}), 0);
}
uniform sampler2D sizes;
float sizeOf(float element) {
  int index = int(element + 0.5);
  return texelFetch(sizes, ivec2(index % ${kStatesWidth}, index / ${kStatesWidth}), 0).r;
}
bool hasFlag(vec4 state, int flag) {
  return (int(state.a * 255.0 + 0.5) & flag) != 0;
}
`;

const kClip = `
uniform vec4 clip;
bool isClipped(vec3 point) { return dot(clip.xyz, point) > clip.w; }
`;

const kPlace = `
#ifdef INSTANCED
in vec3 axisX;
in vec3 axisY;
in vec3 axisZ;
in vec3 shift;
vec3 place() { return axisX * position.x + axisY * position.y + axisZ * position.z + shift; }
// The axes are square to each other.
vec3 turn(vec3 normal) {
  return axisX * (normal.x / dot(axisX, axisX)) + axisY * (normal.y / dot(axisY, axisY))
      + axisZ * (normal.z / dot(axisZ, axisZ));
}
#else
vec3 place() { return position; }
vec3 turn(vec3 normal) { return normal; }
#endif
`;

// Vertices outside of the view volume: the primitive is not drawn.
const kDropped = 'vec4(2.0, 2.0, 2.0, 1.0)';

export const solidVertex = `
${kStateFunctions}
${kPlace}
in float element;
uniform float depthShift;
uniform vec2 viewport;
uniform float pixelRatio;
out vec3 vPoint;
out float vFade;
flat out vec4 vState;
#ifdef ROUND
in uvec2 sides;
uniform vec3 viewDirection;
flat out float vIsOutline;
vec3 normalOf(uint side) {
  vec3 parts = vec3(side & 1023u, (side >> 10u) & 1023u, (side >> 20u) & 1023u);
  return turn(parts - 512.0);
}
#endif
void main() {
  vState = stateOf(element);
  vPoint = place();
  gl_Position = projectionMatrix * viewMatrix * vec4(vPoint, 1.0);
#ifdef ROUND
  vec3 towards = isOrthographic ? -viewDirection : cameraPosition - vPoint;
  bool isFirstSeen = dot(normalOf(sides.x), towards) > 0.0;
  bool isSecondSeen = dot(normalOf(sides.y), towards) > 0.0;
  vIsOutline = isFirstSeen == isSecondSeen ? 0.0 : 1.0;
#endif
  // Edges of elements that are a few pixels wide would hide their colour.
  float pixels = sizeOf(element) * projectionMatrix[1][1] * viewport.y * 0.5
      / (max(gl_Position.w, 1e-6) * pixelRatio);
  vFade = clamp((pixels - 1.0) / 5.0, 0.06, 1.0);
  gl_Position.z -= depthShift * gl_Position.w;
  if (!hasFlag(vState, ${kVisible})) gl_Position = ${kDropped};
#ifdef CLOSED_ONLY
  if (hasFlag(vState, ${kOpen})) gl_Position = ${kDropped};
#endif
}
`;

// The normal comes from derivatives, so faces are flat and the vertices need no normals.
export const solidFragment = `
precision highp float;
${kStateFunctions}
${kClip}
uniform vec3 selectedColour;
uniform vec3 viewDirection;
uniform float opacity;
uniform float pixelRatio;
in vec3 vPoint;
flat in vec4 vState;
out vec4 colour;
void main() {
  vec3 normal = cross(dFdx(vPoint), dFdy(vPoint));
  if (isClipped(vPoint)) discard;
  normal = normalize(normal);
  vec3 light = normalize(vec3(-0.45, -0.7, 0.95));
  float shade = 0.62 + 0.28 * max(dot(normal, light), 0.0) + 0.18 * abs(dot(normal, viewDirection));
  vec3 base = vState.rgb;
  if (hasFlag(vState, ${kSelected})) base = selectedColour;
  if (hasFlag(vState, ${kHovered})) base = mix(base, vec3(1.0), 0.25);
  vec3 lit = min(base * shade, vec3(1.0));
  if (hasFlag(vState, ${kApproximate})) {
    float stripe = mod(gl_FragCoord.x + gl_FragCoord.y, 9.0 * pixelRatio);
    if (stripe < 2.0 * pixelRatio) lit *= 0.55;
  }
  colour = vec4(lit, opacity);
}
`;

export const edgeFragment = `
precision highp float;
${kStateFunctions}
${kClip}
uniform vec3 edgeColour;
uniform float opacity;
in vec3 vPoint;
in float vFade;
flat in vec4 vState;
#ifdef ROUND
flat in float vIsOutline;
#endif
out vec4 colour;
void main() {
#ifdef ROUND
  if (vIsOutline < 0.5) discard;
#endif
  if (isClipped(vPoint)) discard;
  colour = vec4(edgeColour, opacity * vFade);
}
`;

/** Writes no colour: the passes that count the faces along a ray use it. */
export const emptyFragment = `
precision highp float;
${kClip}
in vec3 vPoint;
out vec4 colour;
void main() {
  if (isClipped(vPoint)) discard;
  colour = vec4(0.0);
}
`;

export const capVertex = `
out vec3 vPoint;
void main() {
  vPoint = position;
  gl_Position = projectionMatrix * viewMatrix * vec4(position, 1.0);
}
`;

export const capFragment = `
precision highp float;
uniform vec3 cutColour;
uniform vec3 cutEdge;
uniform float pixelRatio;
out vec4 colour;
void main() {
  float stripe = mod(gl_FragCoord.x - gl_FragCoord.y, 7.0 * pixelRatio);
  colour = vec4(stripe < pixelRatio ? mix(cutColour, cutEdge, 0.45) : cutColour, 1.0);
}
`;

// Each instance is one segment, drawn as a rectangle of constant width on the screen.
export const lineVertex = `
${kStateFunctions}
in vec3 from;
in vec3 to;
in float element;
uniform vec2 viewport;
uniform float width;
uniform float depthShift;
uniform float usesStates;
out float vAlong;
out vec3 vPoint;
flat out vec4 vState;
void main() {
  vState = stateOf(element);
  vec4 a = projectionMatrix * viewMatrix * vec4(from, 1.0);
  vec4 b = projectionMatrix * viewMatrix * vec4(to, 1.0);
  float nearA = a.z + a.w;
  float nearB = b.z + b.w;
  bool isDropped = (nearA <= 0.0 && nearB <= 0.0)
      || (usesStates > 0.5 && !hasFlag(vState, ${kVisible}));
  if (nearA < 0.0) a = mix(a, b, (nearA / (nearA - nearB)) * 1.0001);
  if (nearB < 0.0) b = mix(b, a, (nearB / (nearB - nearA)) * 1.0001);
  vec3 p = a.xyz / a.w;
  vec3 q = b.xyz / b.w;
  vec2 across = (q.xy - p.xy) * viewport;
  float size = length(across);
  vec2 along = size > 1e-4 ? across / size : vec2(1.0, 0.0);
  vec2 side = vec2(-along.y, along.x);
  vec3 at = position.x < 0.5 ? p : q;
  vec2 cap = along * (position.x - 0.5) * width;
  at.xy += (side * position.y * width + cap) / viewport;
  vAlong = position.x * size * 0.5;
  vPoint = position.x < 0.5 ? from : to;
  gl_Position = isDropped ? ${kDropped} : vec4(at.xy, at.z - depthShift, 1.0);
}
`;

export const lineFragment = `
precision highp float;
${kStateFunctions}
${kClip}
uniform vec3 lineColour;
uniform vec3 selectedColour;
uniform float usesStates;
uniform float usesClip;
uniform float darkening;
uniform float dash;
in float vAlong;
in vec3 vPoint;
flat in vec4 vState;
out vec4 colour;
void main() {
  if (usesClip > 0.5 && isClipped(vPoint)) discard;
  bool isDashed = dash > 0.0 || (usesStates > 0.5 && hasFlag(vState, ${kApproximate}));
  float period = dash > 0.0 ? dash : 9.0;
  if (isDashed && mod(vAlong, period) > period * 0.6) discard;
  vec3 base = lineColour;
  if (usesStates > 0.5) {
    base = hasFlag(vState, ${kSelected}) ? selectedColour : vState.rgb * darkening;
    if (hasFlag(vState, ${kHovered})) base = mix(base, vec3(0.5), 0.3);
  }
  colour = vec4(base, 1.0);
}
`;

export const nodeVertex = `
${kStateFunctions}
in float element;
uniform float size;
out vec3 vPoint;
void main() {
  vPoint = position;
  gl_Position = projectionMatrix * viewMatrix * vec4(position, 1.0);
  gl_Position.z -= 0.0002 * gl_Position.w;
  gl_PointSize = size;
  if (!hasFlag(stateOf(element), ${kVisible})) gl_Position = ${kDropped};
}
`;

export const nodeFragment = `
precision highp float;
${kClip}
uniform vec3 nodeColour;
uniform vec3 background;
in vec3 vPoint;
out vec4 colour;
void main() {
  if (isClipped(vPoint)) discard;
  float r = length(gl_PointCoord - 0.5) * 2.0;
  if (r > 1.0) discard;
  colour = vec4(r > 0.55 ? nodeColour : background, 1.0);
}
`;
