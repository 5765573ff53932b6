// versions: 5-8
// Objects, arrays, members, for..in, with, delete.
o = {x: 1, y: "two", "z z": 3, in2: {deep: [10, 20, 30]}};
trace(o.x + o.y);       //= 1two
trace(o["z z"]);        //= 3
trace(o.in2.deep[1]);   //= 20
key = "x";
o[key] = 5; trace(o.x); //= 5
o.x++; trace(o.x);      //= 6
trace(o.x++);           //= 6
trace(++o.x);           //= 8
o.x += 2; trace(o.x);   //= 10
o[key] *= 3; trace(o.x); //= 30
trace(o[key]--);        //= 30
trace(o.x -= 9);        //= 20
calls = 0;
function pickKey() { calls++; return "x"; }
function self() { calls += 10; return o; }
o[pickKey()] += 1;
trace(o.x + " " + calls); //= 21 1
self()[pickKey()] -= 1;
trace(o.x + " " + calls); //= 20 12
self().x *= 2;
trace(o.x + " " + calls); //= 40 22
trace(self()[pickKey()]++); //= 40
trace(o.x);             //= 41
a = [1, 2, 3];
trace(a.length);        //= 3
trace(a);               //= 1,2,3
a[3] = 4; a.push(5);
trace(a.join("-"));     //= 1-2-3-4-5
trace([].length);       //= 0
trace(a[a.length - 1]); //= 5
count = 0; total = "";
for (k in {p: 1}) { trace(k); }   //= p
e = {u: 1, v: 2, w: 3};
for (var k in e) { count++; total += k; }
trace(count + total.length); //= 6
function find(obj, want) { for (var n in obj) { if (n == want) return "found " + n; } return "none"; }
trace(find(e, "v"));    //= found v
trace(find(e, "q"));    //= none
inner = 0;
for (var m in e) { for (var l in e) { if (l == "v") break; inner++; } inner += 100; }
trace(inner >= 300);    //= true
times = 0;
for (var m in e) { times++; if (m == "v") continue; times += 10; }
trace(times);           //= 23
into = {};
for (into.last in {only: 1}) { }
trace(into.last);       //= only
delete o.x;
trace(o.x == undefined); //= true
gone = 1; delete gone;
trace(gone == undefined); //= true
with (e) { u = 50; v += u; }
trace(e.u + " " + e.v); //= 50 52
for (var c = 0; c < 5; c++) { with (e) { if (c == 1) continue; if (c == 3) break; w += 1; } }
trace(e.w + " " + c);   //= 5 3
function inWith(obj) { with (obj) { return w; } }
trace(inWith(e));       //= 5
d = new Date(2004, 1, 3);
trace(d.getFullYear()); //= 2004
trace(Math.max(3, Math.min(9, 7))); //= 7
ar = new Array(3); trace(ar.length); //= 3
trace(new Object() == new Object()); //= false
trace((self()).y);      //= two
trace(this == _root);   //= true
_root.viaRoot = 3; trace(viaRoot); //= 3
trace(_level0.viaRoot); //= 3
trace(eval("via" + "Root")); //= 3
set("made" + 1, 7); trace(made1); //= 7
set(viaSet, 1);
eval("made1") = 8; trace(made1);  //= 8
trace(o.in2["deep"].length); //= 3
y = 1; trace(delete eval("y")); //= true
trace(y);                       //= undefined
clip.gone = 1; trace(delete /clip:gone); //= true
trace(clip.gone);               //= undefined
function forgets(name) { var kept = 1; delete eval(name); return kept; }
y = 2; trace(forgets("y"));     //= 1
trace(y);                       //= undefined
// The value before an increment is exactly that.
small = {x: 0.1, y: 1e-20, n: "5", list: [0.1]};
trace((small.x++) == 0.1);         //= true
trace(small.y++);                  //= 1e-20
trace(small.list[0]-- == 0.1);     //= true
trace(small.list[0]);              //= -0.9
trace(typeof small["n"]++ + small.n); //= number6
function postfix(o) { var k = "x"; return o[k]++ + o.x--; }
trace(postfix({x: 2}));            //= 5
// What an assignment gives is what was assigned, whatever else happens on the way.
watched = {};
watched.addProperty("p", function () { return 1; }, function (v) { var q = {}; q.z = q.y = 8; });
first = second = watched.p = 3;
trace(first + second);             //= 6
function assigned() { return watched.p = 7; }
trace(assigned());                 //= 7
if ((watched.p = 0) == 0) trace("none"); //= none
