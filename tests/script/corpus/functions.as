// versions: 5-8
// Functions: order of declaration, scope, closures, recursion, this, arguments, constructors.
trace(later(2)); //= 4
function later(n) { return n * 2; }
function fact(n) { return n <= 1 ? 1 : n * fact(n - 1); }
trace(fact(6));  //= 720
v = "outer";
function scope() { var v = "inner"; trace(v); }
scope();         //= inner
trace(v);        //= outer
function changes() { v = "changed"; }
changes(); trace(v); //= changed
function none() { return; }
trace(none() == undefined); //= true
function missing(a, b) { return b == undefined; }
trace(missing(1)); //= true
function all() { var s = 0; for (var i = 0; i < arguments.length; i++) s += arguments[i]; return s; }
trace(all(1, 2, 3)); //= 6
obj = {n: 3, get2: function () { return this.n * 2; }};
trace(obj.get2());   //= 6
trace(obj["get2"]()); //= 6
f = obj.get2; obj2 = {n: 50, g: f};
trace(obj2.g());     //= 100
trace((function (x) { return x + 1; })(4)); //= 5
function maker() { return function (x) { return x * x; }; }
trace(maker()(7));   //= 49
function apply2(fn, x) { return fn(fn(x)); }
trace(apply2(function (q) { return q + 10; }, 1)); //= 21
function Point(x, y) { this.x = x; this.y = y; }
Point.prototype.sum = function () { return this.x + this.y; };
p = new Point(3, 4);
trace(p.sum());      //= 7
lib = {Point: Point};
p = new lib.Point(5, 6);
trace(p.sum());      //= 11
p = new lib["Point"](1, 1);
trace(p.sum());      //= 2
function locals(a) { var b = a + 1, c; c = b * 2; b++; a += c--; return a + "," + b + "," + c; }
trace(locals(1));    //= 5,3,3
function nested(n) { function inner(m) { return m + 1; } return inner(n) * 2; }
trace(nested(4));    //= 10
function dyn(name) { var secret = "s"; return eval(name); }
trace(dyn("secret")); //= s
function argsByName() { var t = ""; t += typeof arguments; return t; }
trace(argsByName()); //= object
function shadow(trace1) { var o = trace1; return o; }
trace(shadow("ok")); //= ok
function loop() { var r = ""; for (var i = 0; i < 3; i++) { var x = i * i; r += x; } return r + i; }
trace(loop());       //= 0143
function forIn(o) { var last; for (var k in o) { last = k + "=" + o[k]; } return last; }
trace(forIn({a: 1})); //= a=1
function cond(a) { var r = a || "none"; return r && r + "!"; }
trace(typeof cond(0));      //= string
trace(cond(5));      //= 5!
named = function sums(n) { return n > 0 ? n + sums(n - 1) : 0; };
trace(named(3));     //= 6
function Button(x) { return "own " + x; }
trace(Button(3));            //= own 3
trace(XML("b"));             //= later b
function XML(text) { return "later " + text; }
Color = function (c) { return c * 2; };
trace(Color(4));             //= 8
function given(Sound) { var Video = function (v) { return v + 1; }; return Sound(5) + Video(6); }
trace(given(function (s) { return s; })); //= 12
// Names of an inner function leave those of the outer one as they are.
function around(s) { var h = function (s) { done = 1; }; h(false); return s; }
trace(around("yes"));        //= yes
function counts(n) { var f = function (o) { for (var n in o) { } var s; }; f({a: 1}); return n; }
trace(counts(5));            //= 5
// Functions declared in a block are known from its beginning.
if (later(1) == 2) { trace(inBlock()); function inBlock() { return "in block"; } } //= in block
function chooses(n) {
  if (n > 0) { return sign(); function sign() { return "plus"; } }
  else { return sign(); function sign() { return "minus"; } }
}
trace(chooses(1) + chooses(-1));  //= plusminus
switch (1) { case 1: trace(inCase()); break; function inCase() { return "in case"; } } //= in case
for (i = 0; i < 2; i++) { continue; function behind() { return "behind continue"; } }
trace(behind());                  //= behind continue
