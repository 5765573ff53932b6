// versions: 5-8
// Declarations with a path: they set, and define, where it leads.
trace(f(1));         //= root f 1
trace(g());          //= root g
trace(/clip:h(2));   //= clip h 2
trace(up());         //= up
var /:v = "root";
trace(v);            //= root
var _root.w = 1, x = 2, /clip:y:Number = 3, clip.z:Number = 4;
trace(w + "," + x + "," + clip.y + "," + clip.z); //= 1,2,3,4
var /clip:y;
var clip.z;
trace(clip.y + "," + clip.z); //= 3,4
var clip/:u = 5, clip/../:t = 6;
trace(clip.u + "," + t); //= 5,6
var a = {};
a.b = {};
var a.b.c = 7;
trace(a.b.c);        //= 7
function a.b.k(n) { return n + this.c; }
trace(a.b.k(1));     //= 8
var this.s = 9;
trace(s);            //= 9
for (var _root.i = 0; _root.i < 2; ++_root.i) trace(i); //= 0
                     //= 1
for (var /:key in {only: 1}) trace(key); //= only
function f(n) { return "own f " + n; }
function _root.f(n) { return "root f " + n; }
function /:g() { return "root g"; }
function clip:h(n) { return "clip h " + n; }
function clip/../:up() { return "up"; }
function fromWithin(a) {
  var own = 1, _root.fromFunction = a, a.member = own;
  var clip/:fromFunction = a.member;
  function _root.inner() { return "inner"; }
  return a.member;
}
trace(fromWithin({}) + inner() + typeof(fromFunction) + clip.fromFunction + typeof(own)); //= 1innerobject1undefined
tellTarget("/clip") {
  var told = "in clip", /:told = "in root", ../:higher = 1;
}
trace(clip.told + told + higher); //= in clipin root1
stop();
