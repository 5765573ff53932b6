// versions: 4-8
// What a target or a name that is worked out costs: it is worked out once, whatever leads back to it.
n = 0;
/clip:name = "in clip"; name = "outside";
tellTarget("/cli" add chr(112 + n++)) {
  tellTarget("..") { trace(name); } //= outside
  trace(name);       //= in clip
  tellTarget("/") { tellTarget("/clip") { trace(name); } trace(name); } //= in clip
                     //= outside
  trace(name);       //= in clip
}
trace(name add n);   //= outside1
for (i = 0; i < 2; i++) {
  tellTarget("/cli" add chr(111 + n++)) {
    tellTarget("/") { if (i == 0) break; }
  }
}
trace(name add n);   //= outside2
tellTarget(_root.clip) { tellTarget(_root) trace(name); trace(name); } //= outside
                     //= in clip
tellTarget(this) trace(name); //= outside
v1 = 5; v2 = 10;
eval("v" add n--) += 3; trace(v2 add "," add n);              //= 13,1
trace(eval("v" add n++)++ add "," add v1 add "," add n);      //= 5,6,2
trace(++eval("v" add n--) add "," add v2 add "," add n);      //= 14,14,1
trace((eval("v" add n++) = 8) add "," add v1 add "," add n);  //= 8,8,2
trace((eval("v" add --n) -= eval("v" add ++n)++) add "," add v1 add "," add v2); //= -6,-6,15
t = 0.1; trace(t++); //= 0.1
t = 0.7; trace(t--); //= 0.7
name = "outside"; /clip:name = "in clip";
tellTarget("/cli" add chr(112)) { tellTarget("/") { call(2); } trace(name); } //= frame2
                     //= in clip
n = "n"; y = (eval(n) = 5); trace(y); //= 5
n = "b"; b = 1; y = (eval(n) = (n = "c")); trace(y add b); //= cc
stop();
//@ frame 2
tellTarget("/" add "cli" add chr(112)) { tellTarget("/") { trace("frame2"); } }
